#include "ratios.h"

#include <cstdio>

namespace kov::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    const std::string name = run.run_name.function_name;
    const std::size_t slash = name.rfind('/');
    const bool isTime = run.aggregate_name.empty() || run.aggregate_name == "median";
    if (isTime && slash != std::string::npos) {
      times_.push_back({name.substr(0, slash), name.substr(slash + 1), run.GetAdjustedCPUTime()});
    }
  }
}

void RatioReporter::printRatios() const {
  std::map<std::string, double> ours;
  for (const Time& time : times_) {
    if (time.contender == "kov") ours[time.work] = time.nanoseconds;
  }
  std::printf("\n%-28s %-22s %12s %22s\n", "work", "contender", "ns", "kov / contender");
  for (const Time& time : times_) {
    const auto kov = ours.find(time.work);
    const double ratio = kov == ours.end() ? 0 : kov->second / time.nanoseconds;
    std::printf("%-28s %-22s %12.1f %22.2f\n", time.work.c_str(), time.contender.c_str(), time.nanoseconds, ratio);
  }
}

}  // namespace kov::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  kov::bench::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
  return 0;
}
