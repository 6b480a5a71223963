// How many blocks a benchmark takes from the heap in each step, and how many bytes it holds at once.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

namespace kov::bench {

struct HeapCount {
  std::size_t blocks = 0;
  std::size_t held = 0;
  std::size_t peak = 0;
};
HeapCount& heapCount();

// Counts from its construction on and puts what it saw into the benchmark's counters when it goes.
class HeapUse {
 public:
  explicit HeapUse(benchmark::State& state) : state_(state) { heapCount() = HeapCount{}; }
  HeapUse(const HeapUse&) = delete;
  HeapUse& operator=(const HeapUse&) = delete;
  ~HeapUse() {
    const HeapCount seen = heapCount();
    state_.counters["blocks"] =
        benchmark::Counter(static_cast<double>(seen.blocks), benchmark::Counter::kAvgIterations);
    state_.counters["peak"] = static_cast<double>(seen.peak);
  }

 private:
  benchmark::State& state_;
};

}  // namespace kov::bench
