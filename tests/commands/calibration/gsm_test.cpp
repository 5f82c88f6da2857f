#include <tuple>

#include "commands/calibration/calibration_fixture.h"
#include "declared/gsm_calibration.h"

namespace merovane::test {
namespace {

struct CalibrationMode : CalibrationFixture {
  // A message, its acknowledgement, and a confirmation.
  void ExpectConfirmed(const Fields& message, const Payload& confirmation) {
    handset.Expect(10, 0, message).Answer(10, 0).After(200).Answer(10, 0, confirmation);
  }
};

TEST_F(CalibrationMode, IsConfirmedWithinTheIncrement) {
  settings.receiveIncrementMs = 250;
  InBothByteOrders([&] {
    const Fields toGsm = Message(0xA12D, 20).Zeros(4);
    ExpectConfirmed(toGsm, Message(0xA12E, 20).U32(0));
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::Success);
    ExpectConfirmed(Message(0xA12F, 20).Zeros(4), Message(0xA130, 20).U32(0x100));
    EXPECT_EQ(InitGSMTDCalMode(phone, 7), Result::DspDebugFailed);
    EXPECT_EQ(OperationOf(Result::DspDebugFailed), 31U);
    // Without a status, with a part of one, and longer than the wait holds.
    for (const auto& [confirmation, expected] : {std::pair{Bytes(16, 0xFF), Result::Success},
                                                 {Bytes(17, 0xFF), Result::DspDebugFailed},
                                                 {Bytes(3000), Result::Success}}) {
      ExpectConfirmed(toGsm, confirmation);
      EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), expected);
    }
  });
}

TEST_F(CalibrationMode, CannotBeConfirmedWithoutAnIncrement) {
  handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(10, 0, Message(0xA12E, 20).U32(0));
  EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::NoAnswer);
  ExpectLogged({"Change to GSM CAL Mode:", "Read _CNF:"}, Result::NoAnswer);
  const auto waits = [&](auto command, std::int32_t mode, std::uint32_t ms, const char* logName) {
    handset.ExpectAnyPayload(10, 0).Silent();
    ExpectTakes(ms, Result::NoAnswer, [&] { return command(phone, mode); });
    ExpectLogged({logName}, Result::NoAnswer);
  };
  waits(&ChangeGSMTDCalMode, 1, 3000, "Change to GSM CAL Mode:");
  waits(&InitGSMTDCalMode, 7, 1000, "Init TD CAL Mode:");
  // A negative increment takes time away from the first wait, and leaves none for the second.
  settings.receiveIncrementMs = static_cast<std::uint32_t>(-500);
  handset.ExpectAnyPayload(10, 0).Answer(10, 0);
  ExpectTakes(0U, Result::NoAnswer, [&] { return ChangeGSMTDCalMode(phone, 1); });
}

TEST_F(CalibrationMode, OfTheOtherPathIsAskedForWhateverComesBack) {
  InBothByteOrders([&] {
    handset.Expect(32, 0, Header({0, 0, 43, 0, 0})).Refuse();
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 7), Result::Success);
    ExpectLogged({"Change to TD CAL Mode:"});
    handset.Expect(32, 0, Header({0, 0, 42, 0, 0})).Silent();
    EXPECT_EQ(InitGSMTDCalMode(phone, 1), Result::Success);
    ExpectLogged({"Init GSM CAL Mode:"});
  });
  for (const std::int32_t mode : {-1, 0, 2, 8}) {
    EXPECT_EQ(ChangeGSMTDCalMode(phone, mode), Result::Success);
    EXPECT_EQ(InitGSMTDCalMode(phone, mode), Result::Success);
  }
}

struct Receiver : CalibrationFixture {
  Result Measure() { return AgcStart(phone, 1, &parameters, measured.Data()); }

  QV_AGC_PARAMETERS parameters{0x01020304, {0x1122, 0x3344, 0x5566, 0x7788}, 0x0A0B0C0D};
  GuardedBuffer<QV_AGC_RESULT> measured;
};

TEST_F(Receiver, ReportsLevelsInAFrameOfAnyType) {
  InBothByteOrders([&] {
    const Fields parts =
        Words(Message(0xA111, 36).U32(0x01020304), {0x1122, 0x3344, 0x5566, 0x7788});
    handset.Expect(10, 0, Words(Fields(parts).U32(0x0A0B0C0D), {18, 0}))
        .Answer(10, 0)
        .Answer(55, 7, Words(handset.Message().Zeros(18).U32(0xCAFEF00D), {300, 0xABCD, 9}));
    ExpectTakes(200U, Result::Success, [&] { return Measure(); });
    EXPECT_EQ(measured[0].value, 0xCAFEF00D);
    EXPECT_EQ(measured[0].rx_level, 300);
    EXPECT_EQ(measured[0].rssi, 0xABCD);
    ExpectLogged({"AgcStart:", "RSSI = 0XABCD, RxLevel = 300"});
  });
}

TEST_F(Receiver, ReadsZerosAfterTheEndOfAShortReport) {
  for (const auto& [reportBytes, expected, text] :
       {std::tuple{0, Result::ParseFailed, "00 00 00 00 00 00 00 00"},
        {25, Result::Success, "11 11 11 11 11 11 00 11"},  // it ends within RSSI
        {1, Result::Success, "00 00 00 00 00 00 00 00"}}) {
    handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(
        55, 7, Bytes(static_cast<std::size_t>(reportBytes), 0x11));
    EXPECT_EQ(Measure(), expected);
    EXPECT_EQ(measured.Hex(1), text);
  }
}

TEST_F(Receiver, LeavesTheResultWhenNoReportComes) {
  handset.ExpectAnyPayload(10, 0).Answer(10, 0);
  ExpectTakes(200U + 1000U, Result::NoData, [&] { return Measure(); });
  handset.ExpectAnyPayload(10, 0).Silent();
  ExpectTakes(1000U, Result::NoAnswer, [&] { return Measure(); });
  EXPECT_TRUE(measured.Untouched());
}

using ImeiItem = CalibrationFixture;

TEST_F(ImeiItem, IsNotTakenFromAnotherOrAShortAnswer) {
  GuardedBuffer<std::uint8_t> imei(8);
  GuardedBuffer<char> text(16);
  for (const char* answer : {"00 05 4A 09 51 24 30 32 57", "05 00 4A 09 51 24 30 32 57 81",
                             "00 06 4A 09 51 24 30 32 57 81", "00", ""}) {
    SCOPED_TRACE(answer);
    handset.ExpectAnyPayload(13, 0).Answer(13, 0, answer);
    EXPECT_EQ(ReadIMEI(phone, imei.Data()), Result::ParseFailed);
    handset.ExpectAnyPayload(13, 0).Answer(13, 0, answer);
    EXPECT_EQ(ReadIMEI_ASCII(phone, text.Data()), Result::ParseFailed);
  }
  EXPECT_TRUE(imei.Untouched());
  EXPECT_TRUE(text.Untouched());
}

}  // namespace
}  // namespace merovane::test
