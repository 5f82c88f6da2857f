// A station that calibrates a simulated handset, and the handset's own constants to compare with.
// The handset is a little-endian one: the station programs calibrate big-endian ones.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "parts/radio/constants.h"
#include "support/station.h"
#include "support/temp_directory.h"

extern "C" {
#include "gsm_calibration.h"
}

namespace merovane::test {

class CalibratedStation : public StationTest {
 protected:
  // 0 GSM900, 1 DCS1800, 2 PCS1900, 3 GSM850, as the handset counts them.
  using Band = handset::BandConstants;

  CalibratedStation();

  // A handset of its own kind and the port to it; one that is there goes.
  void Connect(std::uint64_t seed = 1);
  // Off and on again: all that stays is the file.
  void Restart() { Connect(seed_); }

  // The instrument's first number; the test fails when there is none.
  double Measure(const std::string& command, double scale);
  bool Ask(const std::string& command);
  double FrequencyError() { return Measure("AT+SIMFREQ?", 100); }
  double Power() { return Measure("AT+SIMPOWER?", 100); }
  // Frames of the calibration data command for an item, since the journal was cleared.
  std::size_t Heard(std::uint8_t subtype, std::uint16_t item) const;

  std::optional<handset::RadioConstants> truth;

 private:
  TempDirectory directory_;
  const std::filesystem::path stateFile_ = directory_ / "handset.json";
  std::uint64_t seed_ = 1;
};

}  // namespace merovane::test
