// What the calibration commands keep of one handset between calls.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace merovane::commands {

// The value, index and level last written by one of the commands that set a factor.
struct WrittenFactor {
  std::uint16_t value;
  std::uint32_t index;
  std::uint16_t level;
  friend bool operator==(const WrittenFactor&, const WrittenFactor&) = default;
};

// The factors that multi-chip handsets take as calibration data.
enum class MultiChipFactor {
  RampPower,
  Flash8PskPower,
  Ram8PskPower,
  Flash8PskTxGain,
  Ram8PskTxGain,
};
inline constexpr std::size_t kMultiChipFactors = 5;

struct TransmitParameters {
  std::uint32_t first = 0;
  std::uint16_t second = 0;
  std::uint16_t third = 0;
  std::uint16_t fourth = 0;
};

struct CalibrationState {
  // Multi-chip handsets: goes into the band word of every step but the direct-current measurement.
  std::uint16_t currentBand = 0;
  // How the frequency is trimmed: with CDAC and CAFC, or with the CAFC centre.
  bool trimsWithCdac = false;
  TransmitParameters transmit;
  bool transmitterOn = false;

  // The values that steps wrote last: 0 for a new phone object, whatever its handset does.
  std::uint16_t lastTch = 0;
  std::uint16_t lastPcl = 0;
  std::uint16_t lastCdac = 0;
  std::uint16_t lastCafc = 0;
  std::uint16_t lastCafcCenter = 0;
  std::array<std::optional<WrittenFactor>, kMultiChipFactors> lastFactors;

  // TD-SCDMA: continuous transmission and reception.
  bool tdContinuous = false;
};

}  // namespace merovane::commands
