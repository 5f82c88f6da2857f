// SplitMix64: the same numbers from the same seed on every system and compiler.
#pragma once

#include <cmath>
#include <cstdint>

namespace handset {

class Random {
 public:
  explicit Random(std::uint64_t seed, std::uint64_t stream = 0)
      : state_(seed + stream * 0xD1B54A32D192ED03ULL) {}

  std::uint64_t Next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15ULL;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ z >> 27) * 0x94D049BB133111EBULL;
    return z ^ z >> 31;
  }

  // In [0, 1).
  double Uniform() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }

  // In [0, bound).
  std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(Next() % bound); }

  double Gaussian(double mean, double deviation) {
    constexpr double kTwoPi = 6.283185307179586;
    double radius = std::sqrt(-2.0 * std::log(1.0 - Uniform()));
    return mean + deviation * radius * std::cos(kTwoPi * Uniform());
  }

 private:
  std::uint64_t state_;
};

}  // namespace handset
