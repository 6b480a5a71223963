// The program's own non-throwing operator new. It takes its blocks from the ordinary one, so any delete fits.
#include "allocation_probe.h"

#include <algorithm>
#include <new>

namespace {

struct Watch {
  bool active = false;
  int count = 0;
  int failAt = 0;
  std::size_t largest = 0;
};

Watch& watch() {
  static Watch instance;
  return instance;
}

/** A block of the given throwing operator, unless it is refused. */
template <class Allocate>
void* watched(std::size_t size, Allocate allocate) noexcept {
  Watch& w = watch();
  if (w.active) {
    if (++w.count == w.failAt) return nullptr;
    w.largest = std::max(w.largest, size);
  }
  try {
    return allocate(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return watched(size, [](std::size_t bytes) { return ::operator new(bytes); });
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return watched(size, [](std::size_t bytes) { return ::operator new[](bytes); });
}

namespace kov::test {

AllocationProbe::AllocationProbe() {
  watch() = Watch{};
  watch().active = true;
}

AllocationProbe::~AllocationProbe() { watch() = Watch{}; }

void AllocationProbe::failAt(int n) { watch().failAt = watch().count + n; }
int AllocationProbe::count() const { return watch().count; }
std::size_t AllocationProbe::largest() const { return watch().largest; }

}  // namespace kov::test
