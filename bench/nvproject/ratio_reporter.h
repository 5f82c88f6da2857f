// Shows, below the benchmarks, how their processor times stand to each other.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace merovane::bench {

struct Ratio {
  std::string title;
  std::string numerator;  // names of benchmarks
  std::string denominator;
  std::string target;
};

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  explicit RatioReporter(std::vector<Ratio> ratios) : ratios_(std::move(ratios)) {}

  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  std::vector<Ratio> ratios_;
  std::map<std::string, double> secondsPerIteration_;
};

}  // namespace merovane::bench
