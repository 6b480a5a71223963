// Counts, measures and fails the blocks that the library takes with non-throwing operators new.
#pragma once

#include <cstddef>

namespace kov::test {

/** Watches the calling program's non-throwing allocations while it lives; one at a time. */
class AllocationProbe {
 public:
  AllocationProbe();
  AllocationProbe(const AllocationProbe&) = delete;
  AllocationProbe& operator=(const AllocationProbe&) = delete;
  ~AllocationProbe();

  /** Lets the n-th allocation from now on, and only that, fail; the next one is number 1. */
  void failAt(int n);

  int count() const;
  /** The size of the largest block. */
  std::size_t largest() const;
};

}  // namespace kov::test
