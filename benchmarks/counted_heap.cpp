#include "counted_heap.h"

#include <malloc.h>

// The C library's own allocator, behind which this program's malloc counts.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);
}

namespace kov::bench {
namespace {

HeapCount count;

void* taken(void* block) {
  if (block == nullptr) return block;
  ++count.blocks;
  count.held += malloc_usable_size(block);
  if (count.held > count.peak && count.held < (std::size_t{1} << 40)) count.peak = count.held;
  return block;
}

void given(void* block) {
  if (block != nullptr) count.held -= malloc_usable_size(block);
}

}  // namespace

HeapCount& heapCount() { return count; }

}  // namespace kov::bench

void* malloc(std::size_t size) { return kov::bench::taken(__libc_malloc(size)); }
void* calloc(std::size_t number, std::size_t size) { return kov::bench::taken(__libc_calloc(number, size)); }
void* realloc(void* block, std::size_t size) {
  kov::bench::given(block);
  return kov::bench::taken(__libc_realloc(block, size));
}
void free(void* block) {
  kov::bench::given(block);
  __libc_free(block);
}
