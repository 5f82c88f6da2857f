#include "stations/radio/calibrated_station.h"

namespace merovane::test {

CalibratedStation::CalibratedStation() {
  QV_SetProperty(4, 0, 0);
  Connect();
}

void CalibratedStation::Connect(std::uint64_t seed) {
  SwitchOff();
  if (seed != seed_) std::filesystem::remove(stateFile_);
  seed_ = seed;
  truth.emplace(seed);
  HandsetOptions options = Running();
  options.seed = seed;
  options.stateFile = stateFile_.string();
  options.byteOrder = handset::ByteOrder::Little;
  SwitchOn(options);
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS);
}

bool CalibratedStation::Ask(const std::string& command) {
  return instrument_ask(kPort, command.c_str(), nullptr, 0) == PC_ERR_SUCCESS;
}

double CalibratedStation::Measure(const std::string& command, double scale) {
  long number = 0;
  EXPECT_EQ(instrument_ask(kPort, command.c_str(), &number, 1), PC_ERR_SUCCESS) << command;
  return static_cast<double>(number) / scale;
}

std::size_t CalibratedStation::Heard(std::uint8_t subtype, std::uint16_t item) const {
  std::size_t count = 0;
  for (const handset::Frame& frame : phone->Received()) {
    if (frame.type == 32 && frame.subtype == subtype &&
        handset::Read16(frame.payload, 4, handset::ByteOrder::Little) == item) {
      ++count;
    }
  }
  return count;
}

}  // namespace merovane::test
