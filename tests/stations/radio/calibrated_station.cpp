#include "stations/radio/calibrated_station.h"

#include <unistd.h>

#include <cstdlib>

namespace radio_test {

CalibratedStation::CalibratedStation()
    : stateFile(std::filesystem::temp_directory_path() /
                ("radio-test-" + std::to_string(getpid()) + ".json")) {
  QV_SetProperty(4, 0, bigEndian);
  Connect();
}

CalibratedStation::~CalibratedStation() {
  Disconnect();
  std::filesystem::remove(stateFile);
}

handset::ByteOrder CalibratedStation::Order(bool bigEndian) {
  return bigEndian ? handset::ByteOrder::Big : handset::ByteOrder::Little;
}

void CalibratedStation::Connect(uint64_t seed) {
  Disconnect();
  if (seed != seed_) std::filesystem::remove(stateFile);
  seed_ = seed;
  truth.emplace(seed);
  handset::HandsetOptions options;
  options.seed = seed;
  options.startMode = 1;
  options.stateFile = stateFile.string();
  options.byteOrder = Order(bigEndian);
  // Either way of connecting gets its share.
  if (bigEndian) options.transport = handset::TransportKind::Tcp;
  phone.emplace(options);
  phone->Start();
  setenv(("CASSORIND_COM" + std::to_string(kPort)).c_str(), phone->DevicePath().c_str(), 1);
  ASSERT_EQ(QV_BeginPhoneTest(kPort, 115200), PC_ERR_SUCCESS);
}

void CalibratedStation::Disconnect() {
  QV_EndPhoneTest();
  phone.reset();
}

bool CalibratedStation::Ask(const std::string& command) {
  return instrument_ask(kPort, command.c_str(), nullptr, 0) == PC_ERR_SUCCESS;
}

double CalibratedStation::Measure(const std::string& command, double scale) {
  long number = 0;
  EXPECT_EQ(instrument_ask(kPort, command.c_str(), &number, 1), PC_ERR_SUCCESS) << command;
  return static_cast<double>(number) / scale;
}

size_t CalibratedStation::Heard(uint8_t subtype, uint16_t item) const {
  size_t count = 0;
  for (const handset::Frame& frame : phone->Received()) {
    if (frame.type == 32 && frame.subtype == subtype &&
        handset::Read16(frame.payload, 4, Order(bigEndian)) == item) {
      ++count;
    }
  }
  return count;
}

}  // namespace radio_test
