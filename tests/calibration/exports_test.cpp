// The exported functions of the calibration data as a station calls them: each passes its arguments
// on to the right item in the right place.
#define MEROVANE_BUILD
#include "api/library.h"
#include "api/phone_object.h"
#include "brimwell/brimwell.h"
#include "calibration/calibration_fixture.h"
#include "merovane/merovane.h"

namespace merovane::test {
namespace {

enum Direction { kReads, kWrites };

// Where a sample's caller keeps data: a pattern whose elements differ from their reverse.
struct CallersData {
  CallersData(std::size_t byteCount, bool filled) : bytes(byteCount) {
    for (std::size_t at = 0; filled && at < bytes; ++at) {
      buffer[at] = static_cast<std::uint8_t>(3 * at + 1);
    }
  }
  operator std::uint16_t*() { return reinterpret_cast<std::uint16_t*>(buffer.Data()); }
  operator std::uint32_t*() { return reinterpret_cast<std::uint32_t*>(buffer.Data()); }
  Fields OnTheWire(Fields fields, unsigned width) {
    for (std::size_t at = 0; at < bytes; at += width) {
      if (width == 4) fields.U32(static_cast<std::uint32_t*>(*this)[at / 4]);
      if (width == 2) fields.U16(static_cast<std::uint16_t*>(*this)[at / 2]);
    }
    return fields;
  }

  std::size_t bytes;
  GuardedBuffer<std::uint8_t> buffer{bytes};
};
// The pattern's first element.
constexpr std::uint16_t kWord = 0x0401;
constexpr std::uint32_t kLong = 0x0A070401;

struct Sample {
  const char* logName;
  std::uint32_t operation;
  Direction direction;
  unsigned width;
  std::array<unsigned, 5> header;
  std::int32_t (*call)(std::int32_t port, CallersData& data);
};

#define RUNS(...) \
  [](std::int32_t port [[maybe_unused]], CallersData& data [[maybe_unused]]) { return __VA_ARGS__; }

// One of each kind, in the words of the wire.
// clang-format off
const Sample kSamples[] = {
    {"ReadData_Flash_ADC_Adc1:", 87, kReads, 4, {1, 0, 1, 1, 4},
     RUNS(QV_ReadData_Flash_ADC_Adc1(data))},
    {"WriteData_Ram_ADC_Battery0:", 78, kWrites, 4, {0, 0, 1, 2, 4},
     RUNS(QV_WriteData_Ram_ADC_Battery0_MT(port, kLong))},
    // Records no id, so that the one before stands.
    {"WriteData_Flash_ADC:", 78, kWrites, 4, {1, 0, 1, 200, 4},
     RUNS(QV_WriteData_Flash_ADC(200, kLong))},
    {"WriteData_Flash_AFC_afc_slope_hz_per_6bits:", 98, kWrites, 2, {1, 0, 3, 0, 2},
     RUNS(QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits(kWord))},
    {"WriteData_Ram_AFC_slope_value_arr:", 119, kWrites, 2, {0, 0, 4, 0, 34},
     RUNS(QV_WriteData_Ram_AFC_slope_value_arr(data))},
    {"ReadData_Ram_AGC_RX_compensate_value:", 127, kReads, 2, {0, 1, 18, 0, 14},
     RUNS(QV_ReadData_Ram_AGC_RX_compensate_value_MT(port, 1, data, 7))},
    {"SetRampTable_Flash:", 142, kWrites, 2, {1, 3, 8, 100, 40},
     RUNS(QV_SetRampTable_Flash(3, 5, data))},
    {"ReadRampTableConstDown_Ram:", 153, kReads, 2, {0, 1, 10, 9, 2},
     RUNS(QV_ReadRampTableConstDown_Ram(1, 9, data))},
    {"WriteData_Ram_Duration_8PSK:", 251, kWrites, 2, {0, 1, 39, 0x123, 2},
     RUNS(QV_WriteData_Ram_Duration_8PSK(1, 0x123, kWord))},
    {"GetRfScheme:", 170, kReads, 2, {0, 0, 33, 0, 12}, RUNS(QV_GetRfScheme(data))},
    {"RW_RF_EDGE_DELTA_TIMING:", 170, kReads, 2, {1, 3, 58, 0, 2},
     RUNS(QV_RW_RF_EDGE_DELTA_TIMING(1, 1, 3, data))},
};
// clang-format on

struct Exports : CalibrationFixture {
  void SetUp() override {
    LinkSettings& loaded = api::TheLibrary().settings;
    loaded.usefulLog = true;
    auto object = std::make_shared<api::PhoneObject>(loaded, clock, handset.Library());
    ASSERT_EQ(object->link.Open(port, 115200), Result::Success);
    api::TheLibrary().registry.Enter(port, object);
    api::TheLibrary().registry.MakeDefault(port);
    static_cast<void>(Log());
  }
  void TearDown() override { EXPECT_EQ(QV_EndPhoneTest(), 0); }

  // The id under which the last result was reported.
  std::uint32_t ReportedOperation() {
    BRIMWELL_ERROR error{};
    EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
    return error.operation;
  }
};

TEST_F(Exports, TravelWithTheirHeaderInTheHandsetsByteOrder) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.logName);
    InBothByteOrders([&] {
      Fields request = handset.Message();
      for (const unsigned word : sample.header) request.U16(word);
      CallersData pattern(sample.header[4], true);
      const std::string bytes = pattern.buffer.Hex(pattern.bytes);
      CallersData data(sample.header[4], sample.direction == kWrites);
      if (sample.direction == kWrites) {
        ExpectWrite(pattern.OnTheWire(request, sample.width));
      } else {
        ExpectRead(request, pattern.OnTheWire(ReadAnswer(), sample.width).Raw("EE EE EE EE"));
      }
      EXPECT_EQ(sample.call(port, data), 0);
      EXPECT_EQ(data.buffer.Hex(data.bytes), bytes);
      EXPECT_EQ(ReportedOperation(), sample.operation);
      ExpectLogged(sample.logName);
    });
  }
}

}  // namespace
}  // namespace merovane::test
