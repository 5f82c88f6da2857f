// A station on a simulated handset, in test mode, through the exported functions.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>

#include "handset/handset.h"
#include "parts/radio/constants.h"

extern "C" {
#include "gsm_calibration.h"
}

namespace radio_test {

class CalibratedStation : public testing::TestWithParam<bool> {
 protected:
  static constexpr int32_t kPort = 61;
  // 0 GSM900, 1 DCS1800, 2 PCS1900, 3 GSM850, as the handset counts them.
  using Band = handset::BandConstants;

  CalibratedStation();
  ~CalibratedStation() override;

  // A handset of its own kind and the port to it; one that is there goes.
  void Connect(uint64_t seed = 1);
  void Disconnect();
  // Off and on again: all that stays is the file.
  void Restart() { Connect(seed_); }

  // The instrument's first number; the test fails when there is none.
  double Measure(const std::string& command, double scale);
  bool Ask(const std::string& command);
  double FrequencyError() { return Measure("AT+SIMFREQ?", 100); }
  double Power() { return Measure("AT+SIMPOWER?", 100); }
  // Frames of the calibration data command for an item, since the journal was cleared.
  size_t Heard(uint8_t subtype, uint16_t item) const;

  static handset::ByteOrder Order(bool bigEndian);

  const bool bigEndian = GetParam();
  const std::filesystem::path stateFile;
  std::optional<handset::RadioConstants> truth;
  std::optional<handset::Handset> phone;

 private:
  uint64_t seed_ = 1;
};

}  // namespace radio_test
