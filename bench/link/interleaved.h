// Two ways of doing the same, measured in turns, so that what slows the machine slows both.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace bench {

using Seconds = std::chrono::duration<double>;

template <typename Function>
double SecondsOf(int rounds, Function&& function) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < rounds; ++i) function();
  return Seconds(std::chrono::steady_clock::now() - start).count() / rounds;
}

struct Times {
  double own;
  double other;
};

// An iteration runs each that many times; its time is the own one. The medians are over all
// iterations.
template <typename Own, typename Other>
Times MeasureInTurns(benchmark::State& state, int rounds, Own&& own, Other&& other) {
  std::vector<double> ownTimes;
  std::vector<double> otherTimes;
  for ([[maybe_unused]] auto each : state) {
    otherTimes.push_back(SecondsOf(rounds, other));
    ownTimes.push_back(SecondsOf(rounds, own));
    state.SetIterationTime(ownTimes.back() * rounds);
  }
  const auto lowerTenth = [](std::vector<double>& times) {
    std::ranges::sort(times);
    return times[times.size() / 10];
  };
  return {lowerTenth(ownTimes), lowerTenth(otherTimes)};
}

}  // namespace bench
