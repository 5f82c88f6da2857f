// A station that calibrates a simulated handset. The handset is a little-endian one: the station
// programs calibrate big-endian ones.
#pragma once

#include "support/station.h"
#include "support/temp_directory.h"

namespace merovane::test {

class CalibratedStation : public StationTest {
 protected:
  CalibratedStation() {
    QV_SetProperty(4, 0, 0);
    Restart();
  }

  // Off and on again: all that stays is the file.
  void Restart() {
    HandsetOptions options = Running();
    options.seed = kSeed;
    options.stateFile = (directory_ / "handset.json").string();
    options.byteOrder = handset::ByteOrder::Little;
    SwitchOn(options);
    ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS);
  }

  static constexpr std::uint64_t kSeed = 1;

 private:
  TempDirectory directory_;
};

}  // namespace merovane::test
