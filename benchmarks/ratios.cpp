#include "ratios.h"

#include <cstdio>

namespace kov::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    const std::string name = run.run_name.function_name;
    const std::size_t slash = name.rfind('/');
    if (run.aggregate_name != kBest || slash == std::string::npos) continue;
    const auto counter = [&run](const char* wanted) {
      const auto found = run.counters.find(wanted);
      return found == run.counters.end() ? 0.0 : found->second.value;
    };
    results_[run.family_index] = Result{name.substr(0, slash), name.substr(slash + 1), run.GetAdjustedCPUTime(),
                                        counter("blocks"), counter("peak")};
  }
}

void RatioReporter::printRatios() const {
  std::map<std::string, double> ours;
  for (const auto& [index, result] : results_) {
    if (result.contender == "kov") ours[result.work] = result.nanoseconds;
  }
  std::printf(
      "| work | contender | ns | kov / contender | heap blocks | peak heap, bytes |\n|---|---|---|---|---|---|\n");
  for (const auto& [index, result] : results_) {
    std::printf("| %s | %s | %.0f | %.2f | %.0f | %.0f |\n", result.work.c_str(), result.contender.c_str(),
                result.nanoseconds, ours[result.work] / result.nanoseconds, result.blocks, result.peak);
  }
}

}  // namespace kov::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  kov::bench::registerAll();
  kov::bench::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
  return 0;
}
