#include <algorithm>
#include <cstring>
#include <memory>
#include <tuple>

#include "commands/calibration/calibration_fixture.h"
#include "declared/td_calibration.h"

namespace merovane::test {
namespace {

using Td = CalibrationFixture;

TEST_F(Td, PowerStepsTellWhetherTransmissionIsContinuous) {
  const QV_POWER_STEP step{0x01020304, 5, 6, 0x0708090A};
  InBothByteOrders([&] {
    for (const std::uint32_t continuous : {0U, 0x10000U}) {
      EXPECT_EQ(SetTDContTxRxMode(phone, continuous), Result::Success);
      ExpectLogged({});
      const Fields begin = Words(Message(0xA119, 32).U32(0x01020304), {5, 6});
      handset.Expect(10, 0, Words(Fields(begin).U32(0x0708090A), {continuous ? 1U : 0U, 0}))
          .Answer(10, 0);
      EXPECT_EQ(PwrStepFactorSet_TD(phone, &step), Result::Success);
      static_cast<void>(Log());
    }
  });
}

TEST_F(Td, ModeIsCutToTheBuffer) {
  GuardedBuffer<std::uint8_t> mode(4);
  handset.Expect(28, 1).Answer(28, 1, "11 12 13 14 15 16 17 18 19 1A");
  EXPECT_EQ(ReadMode_TD(phone, mode.Data(), 4), Result::BufferTooSmall);
  EXPECT_EQ(mode.Hex(4), "11 12 13 14");
  EXPECT_EQ(LogNames().back(), ResultLine(Result::BufferTooSmall));
}

TEST_F(Td, StartModeIsAcknowledgedByTheNextFrame) {
  handset.Expect(254, 131).Answer(77, 0x91);
  EXPECT_EQ(SetPhoneStartMode_TD(phone, 3), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 177U);
  ExpectLogged({"SetPhoneStartMode_TD:"});
  handset.Expect(254, 127).Answer(254, 127).Answer(254, 0x91);
  EXPECT_EQ(SetPhoneStartMode_TD(phone, 0xFFFF'FFFF), Result::EnterModeFailed);
  // Too short to have a subtype.
  handset.Expect(254, 128).Raw("7E 00 00 00 00 91 7E 7E 7E 7E");
  EXPECT_EQ(SetPhoneStartMode_TD(phone, 0), Result::EnterModeFailed);
  settings.receiveIncrementMs = 500;
  handset.Expect(254, 128).Silent();
  ExpectTakes(3000U, Result::NoData, [&] { return SetPhoneStartMode_TD(phone, 0); });
  handset.Expect(254, 128).WriteFails();
  EXPECT_EQ(SetPhoneStartMode_TD(phone, 0), Result::WriteFailed);
}

struct TdParameters : CalibrationFixture {
  static QV_TD_PARAMETERS* RecordIn(GuardedBuffer<std::uint8_t>& memory, std::uint16_t count) {
    const std::uint32_t selector = 0x01020304;
    std::memcpy(memory.Data(), &selector, sizeof(selector));
    std::memcpy(memory.Data() + 4, &count, sizeof(count));
    return reinterpret_cast<QV_TD_PARAMETERS*>(memory.Data());
  }
  // With memory for two values and no more.
  QV_TD_PARAMETERS* Record(std::uint16_t count) { return RecordIn(memory, count); }
  GuardedBuffer<std::uint8_t> memory{10};
};

TEST_F(TdParameters, AreRead) {
  InBothByteOrders([&] {
    const Fields request = handset.Message().U32(0x01020304).U16(2).U16(0);
    handset.Expect(36, 0, request)
        .Answer(36, 0, handset.Message().U32(0).U16(3).U16(0x0506).U16(0x0708).U16(9));
    EXPECT_EQ(ReadTDCalParam(phone, Record(2)), Result::Success);
    EXPECT_EQ(memory.Hex(10), "04 03 02 01 02 00 06 05 08 07");
    EXPECT_EQ(OperationOf(Result::Success), 180U);
    ExpectLogged({"ReadTDCalParam:"});
  });
}

TEST_F(TdParameters, AreNotTakenFromAnAnswerThatLacksThem) {
  const std::uint32_t values = 0xA5A5A5A5;
  std::memcpy(memory.Data() + 6, &values, sizeof(values));
  handset.ExpectAnyPayload(36, 0).Answer(36, 0, "00 00 00 00 00 02 11 11 11");
  EXPECT_EQ(ReadTDCalParam(phone, Record(2)), Result::ParseFailed);
  handset.ExpectAnyPayload(36, 0).Answer(36, 0, "00 00 00 00 00 01 11 11 11 11");
  EXPECT_EQ(ReadTDCalParam(phone, Record(2)), Result::WrongDataLength);
  EXPECT_EQ(LogNames().back(), ResultLine(Result::WrongDataLength));
  handset.ExpectAnyPayload(36, 0).Silent();
  ExpectTakes(1000U, Result::NoAnswer, [&] { return ReadTDCalParam(phone, Record(2)); });
  EXPECT_EQ(memory.Hex(10), "04 03 02 01 02 00 A5 A5 A5 A5");
}

TEST_F(TdParameters, AreReadAsManyAsAnAnswerCarries) {
  constexpr unsigned kMost = 4600;
  GuardedBuffer<std::uint8_t> large(6 + 2 * kMost);
  Fields answer = handset.Message().U32(0).U16(kMost);
  for (unsigned at = 0; at < kMost; ++at) answer.U16(0x0102);
  handset.ExpectAnyPayload(36, 0).Answer(36, 0, answer);
  EXPECT_EQ(ReadTDCalParam(phone, RecordIn(large, kMost)), Result::Success);
  EXPECT_EQ(ToHex(std::span(large.Data() + 4 + std::size_t{2} * kMost, 2)), "02 01");
}

TEST_F(TdParameters, AreCountedWhenTheyAreWritten) {
  auto record = std::make_unique<QV_TD_PARAMETERS>();
  std::ranges::fill(record->values, 0x7E7D);
  for (const auto& [count, answered, expected] : {std::tuple{3073, 3073, Result::Success},
                                                  {2, 1, Result::WrongDataLength},
                                                  {2, 3, Result::WrongDataLength}}) {
    record->count = static_cast<std::uint16_t>(count);
    const Payload counted = handset.Message().U32(0).U16(static_cast<unsigned>(answered)).U16(0);
    handset.ExpectAnyPayload(36, 1).Answer(36, 1, counted);
    EXPECT_EQ(WriteTDCalParam(phone, record.get()), expected);
    EXPECT_EQ(LogNames().back(), ResultLine(expected));
    EXPECT_EQ(handset.Heard().back().payload.size(), 6U + 2 * record->count);
  }
}

}  // namespace
}  // namespace merovane::test
