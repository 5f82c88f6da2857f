#include "nvproject/ratio_reporter.h"

#include <cstdio>

namespace merovane::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
    secondsPerIteration_[run.run_name.str()] =
        run.cpu_accumulated_time / static_cast<double>(run.iterations);
  }
}

void RatioReporter::Finalize() {
  std::printf("\n");
  for (const Ratio& ratio : ratios_) {
    const auto numerator = secondsPerIteration_.find(ratio.numerator);
    const auto denominator = secondsPerIteration_.find(ratio.denominator);
    if (numerator == secondsPerIteration_.end() || denominator == secondsPerIteration_.end()) {
      continue;
    }
    std::printf("%-58s %10.1f times  (%s)\n", ratio.title.c_str(),
                numerator->second / denominator->second, ratio.target.c_str());
  }
}

}  // namespace merovane::bench
