// Runs the benchmarks and prints each time beside that of the library in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace kov::bench {

// The statistic that the table shows: the best repetition.
constexpr const char* kBest = "best";

// Registers all benchmarks. They are named "work/contender"; the library's contender is "kov".
void registerAll();

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  void printRatios() const;

 private:
  struct Result {
    std::string work;
    std::string contender;
    double nanoseconds;
    double blocks;
    double peak;
  };
  std::map<std::int64_t, Result> results_;  // in the order of registration
};

}  // namespace kov::bench
