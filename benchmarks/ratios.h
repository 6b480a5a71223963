// Runs the benchmarks and prints each time beside that of the library in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kov::bench {

// Benchmarks are named "work/contender"; the library's contender is "kov".
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  void printRatios() const;

 private:
  struct Time {
    std::string work;
    std::string contender;
    double nanoseconds;
  };
  std::vector<Time> times_;
};

}  // namespace kov::bench
