#include "commands/calibration/gsm.h"

#include <tuple>

#include "calibration/calibration_fixture.h"

namespace merovane::test {
namespace {

struct CalibrationMode : CalibrationFixture {};

TEST_F(CalibrationMode, IsConfirmedWithinTheIncrement) {
  settings.receiveIncrementMs = 250;
  InBothByteOrders([&] {
    handset.Expect(10, 0, Message(0xA12D, 20).Zeros(4))
        .Answer(10, 0)
        .After(200)
        .Answer(10, 0, Message(0xA12E, 20).U32(0));
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::Success);
    handset.Expect(10, 0, Message(0xA12F, 20).Zeros(4))
        .Answer(10, 0)
        .Answer(10, 0, Message(0xA130, 20).U32(0x100));
    EXPECT_EQ(InitGSMTDCalMode(phone, 7), Result::DspDebugFailed);
    EXPECT_EQ(OperationOf(Result::DspDebugFailed), 31U);
    // It ends before its status.
    handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(10, 0, Bytes(19, 0xFF));
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::DspDebugFailed);
    handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(10, 0, Bytes(16, 0xFF));
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::Success);
    // Longer than the wait holds.
    handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(10, 0, Bytes(3000));
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::Success);
  });
}

TEST_F(CalibrationMode, CannotBeConfirmedWithoutAnIncrement) {
  handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(10, 0, Message(0xA12E, 20).U32(0));
  EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::NoAnswer);
  EXPECT_THAT(LogText(), ElementsAre("Change to GSM CAL Mode:", "Clear Port Buffer",
                                     "Read _CNF:", ResultLine(Result::NoAnswer)));
  const std::uint32_t before = clock.NowMs();
  handset.ExpectAnyPayload(10, 0).Silent();
  EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 3000U);
  EXPECT_THAT(LogText(), ElementsAre("Change to GSM CAL Mode:", "Clear Port Buffer",
                                     ResultLine(Result::NoAnswer)));
}

TEST_F(CalibrationMode, OfTheOtherPathIsAskedForWhateverComesBack) {
  InBothByteOrders([&] {
    handset.Expect(32, 0, Header({0, 0, 43, 0, 0})).Refuse();
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 7), Result::Success);
    handset.Expect(32, 0, Header({0, 0, 42, 0, 0})).Silent();
    EXPECT_EQ(InitGSMTDCalMode(phone, 1), Result::Success);
  });
  for (const std::int32_t mode : {-1, 0, 2, 8}) {
    EXPECT_EQ(ChangeGSMTDCalMode(phone, mode), Result::Success);
    EXPECT_EQ(InitGSMTDCalMode(phone, mode), Result::Success);
  }
}

TEST_F(CalibrationMode, IsActivatedInABand) {
  InBothByteOrders([&] {
    ExpectMessage(Message(0xA101, 16));
    EXPECT_EQ(Active(phone, 0x100), Result::Success);
    ExpectMessage(Message(0xA102, 16));
    EXPECT_EQ(Active(phone, 0), Result::Success);
    for (const std::uint32_t band : {0U, 1U, 3U, 4U}) {
      ExpectMessage(Message(0xA103, 20).U32(band));
      EXPECT_EQ(SetPhoneClassmark(phone, band), Result::Success);
    }
  });
  static_cast<void>(Log());
  for (const std::uint32_t band : {2U, 5U, 0x10000U}) {
    ExpectRefused(SetPhoneClassmark(phone, band), 52);
  }
}

struct Receiver : CalibrationFixture {
  Result Measure() { return AgcStart(phone, 1, &parameters, measured.Data()); }
  // A measurement's acknowledgement and report.
  void ExpectMeasurement(const Payload& report) {
    handset.ExpectAnyPayload(10, 0).Answer(10, 0).Answer(55, 7, report);
  }

  QV_AGC_PARAMETERS parameters{0x01020304, {0x1122, 0x3344, 0x5566, 0x7788}, 0x0A0B0C0D};
  GuardedBuffer<QV_AGC_RESULT> measured;
};

TEST_F(Receiver, ReportsLevelsInAFrameOfAnyType) {
  InBothByteOrders([&] {
    const std::uint32_t before = clock.NowMs();
    handset
        .Expect(10, 0,
                Message(0xA111, 36)
                    .U32(0x01020304)
                    .U16(0x1122)
                    .U16(0x3344)
                    .U16(0x5566)
                    .U16(0x7788)
                    .U32(0x0A0B0C0D)
                    .U16(18)
                    .U16(0))
        .Answer(10, 0)
        .Answer(55, 7, handset.Message().Zeros(18).U32(0xCAFEF00D).U16(300).U16(0xABCD).U16(9));
    EXPECT_EQ(Measure(), Result::Success);
    EXPECT_EQ(clock.NowMs() - before, 200U);
    EXPECT_EQ(measured[0].value, 0xCAFEF00D);
    EXPECT_EQ(measured[0].rx_level, 300);
    EXPECT_EQ(measured[0].rssi, 0xABCD);
    EXPECT_THAT(LogText(),
                ElementsAre("AgcStart:", "Clear Port Buffer", "RSSI = 0XABCD, RxLevel = 300",
                            ResultLine(Result::Success)));
    ExpectMessage(Message(0xA112, 16));
    EXPECT_EQ(AgcStart(phone, 0, nullptr, nullptr), Result::Success);
    EXPECT_THAT(LogText(),
                ElementsAre("AgcStop:", "Clear Port Buffer", ResultLine(Result::Success)));
  });
}

TEST_F(Receiver, TakesNothingFromBehindAShortReport) {
  ExpectMeasurement("");
  EXPECT_EQ(Measure(), Result::ParseFailed);
  EXPECT_EQ(measured.Hex(1), "00 00 00 00 00 00 00 00");
  // It ends within RSSI.
  ExpectMeasurement(Bytes(25, 0x11));
  EXPECT_EQ(Measure(), Result::Success);
  EXPECT_EQ(measured[0].value, 0x11111111U);
  EXPECT_EQ(measured[0].rx_level, 0x1111);
  EXPECT_EQ(measured[0].rssi, 0x1100);
  ExpectMeasurement("11");
  EXPECT_EQ(Measure(), Result::Success);
  EXPECT_EQ(measured[0].value, 0U);
}

TEST_F(Receiver, LeavesTheResultWhenNoReportComes) {
  handset.ExpectAnyPayload(10, 0).Answer(10, 0);
  EXPECT_EQ(Measure(), Result::NoData);
  handset.ExpectAnyPayload(10, 0).Silent();
  EXPECT_EQ(Measure(), Result::NoAnswer);
  handset.ExpectAnyPayload(10, 0).Refuse();
  EXPECT_EQ(Measure(), Result::Refused);
  static_cast<void>(Log());
  ExpectRefused(AgcStart(phone, 1, nullptr, measured.Data()), 55);
  ExpectRefused(AgcStart(phone, 1, &parameters, nullptr), 55);
  EXPECT_TRUE(measured.Untouched());
}

struct Transmitter : CalibrationFixture {};

TEST_F(Transmitter, IsTrimmedWithTheFirstValueInThirdPlace) {
  const QV_AFC_PARAMETERS parameters{{1, 2, 3, 4}};
  InBothByteOrders([&] {
    ExpectMessage(Message(0xA114, 24).U16(2).U16(3).U16(1).U16(4));
    EXPECT_EQ(AfcStart(phone, 1, &parameters), Result::Success);
    ExpectMessage(Message(0xA115, 16));
    EXPECT_EQ(AfcStart(phone, 0, nullptr), Result::Success);
  });
  static_cast<void>(Log());
  ExpectRefused(AfcStart(phone, 1, nullptr), 53);
}

TEST_F(Transmitter, TakesPowerStepsAndAmplifierSettings) {
  const QV_POWER_STEP step{0x01020304, 0x0506, 0x0708, 0x090A0B0C};
  InBothByteOrders([&] {
    ExpectMessage(Message(0xA119, 28).U32(0x01020304).U16(0x0506).U16(0x0708).U32(0x090A0B0C));
    EXPECT_EQ(PwrStepFactorSet(phone, &step), Result::Success);
    // The high half of the amplifier's last field is in the station's order in either case.
    ExpectMessage(
        Message(0xA11A, 28).U32(0x01020304).U16(0x0506).U16(0x0708).U16(0x0B0C).Raw("0A 09"));
    EXPECT_EQ(PASetting(phone, &step), Result::Success);
  });
  static_cast<void>(Log());
  ExpectRefused(PwrStepFactorSet(phone, nullptr), 56);
  ExpectRefused(PASetting(phone, nullptr), 64);
}

TEST_F(Transmitter, TakesRampsOfABand) {
  std::array<std::uint16_t, 16> up{};
  std::array<std::uint16_t, 16> down{};
  InBothByteOrders([&] {
    Fields message = Message(0xA118, 88).U32(3).U16(1);
    for (unsigned at = 0; at < 16; ++at)
      message.U16(up[at] = static_cast<std::uint16_t>(0x100 + at));
    for (unsigned at = 0; at < 16; ++at)
      message.U16(down[at] = static_cast<std::uint16_t>(0x200 + at));
    ExpectMessage(message.Zeros(2));
    EXPECT_EQ(RampSetting(phone, 0x10000, up.data(), down.data(), 3), Result::Success);
  });
  static_cast<void>(Log());
  ExpectRefused(RampSetting(phone, 0, up.data(), down.data(), 2), 63);
  ExpectRefused(RampSetting(phone, 0, nullptr, down.data(), 3), 63);
  ExpectRefused(RampSetting(phone, 0, up.data(), nullptr, 3), 63);
}

TEST_F(Transmitter, EntersAndLeavesFullPowerWithoutWaiting) {
  const std::uint32_t before = clock.NowMs();
  for (const auto& [command, subtype, operation] :
       {std::tuple{&commands::EnterMaxTxPowerStatus, 6, 59U},
        {&commands::LeaveMaxTxPowerStatus, 0, 60U},
        {&commands::EnterMaxRxPowerStatus, 5, 61U},
        {&commands::LeaveMaxRxPowerStatus, 0, 62U}}) {
    handset.Expect(17, static_cast<std::uint8_t>(subtype));
    EXPECT_EQ(command(phone), Result::Success);
    EXPECT_EQ(OperationOf(Result::Success), operation);
  }
  EXPECT_EQ(clock.NowMs(), before);
  handset.Expect(17, 6).WriteFails();
  EXPECT_EQ(EnterMaxTxPowerStatus(phone), Result::WriteFailed);
}

struct ImeiItem : CalibrationFixture {
  void ExpectRead(const Payload& answer) {
    handset.Expect(13, 0, handset.Message().U16(5)).Answer(13, 0, answer);
  }
  GuardedBuffer<std::uint8_t> imei{8};
  GuardedBuffer<char> text{16};
};

TEST_F(ImeiItem, IsReadPackedAndAsText) {
  InBothByteOrders([&] {
    const Fields answer = handset.Message().U16(5).Raw("4A 09 51 24 30 32 57 81");
    ExpectRead(answer);
    EXPECT_EQ(ReadIMEI(phone, imei.Data()), Result::Success);
    EXPECT_EQ(imei.Hex(8), "4A 09 51 24 30 32 57 81");
    ExpectRead(Joined(answer.Get(), Hex("99 99")));
    EXPECT_EQ(ReadIMEI_ASCII(phone, text.Data()), Result::Success);
    EXPECT_STREQ(text.Data(), "490154203237518");
  });
}

TEST_F(ImeiItem, IsNotTakenFromAnotherOrAShortAnswer) {
  for (const char* answer : {"00 05 4A 09 51 24 30 32 57", "05 00 4A 09 51 24 30 32 57 81",
                             "00 06 4A 09 51 24 30 32 57 81", "00", ""}) {
    SCOPED_TRACE(answer);
    ExpectRead(answer);
    EXPECT_EQ(ReadIMEI(phone, imei.Data()), Result::ParseFailed);
    ExpectRead(answer);
    EXPECT_EQ(ReadIMEI_ASCII(phone, text.Data()), Result::ParseFailed);
  }
  EXPECT_TRUE(imei.Untouched());
  EXPECT_TRUE(text.Untouched());
  static_cast<void>(Log());
  ExpectRefused(ReadIMEI(phone, nullptr), 57);
  ExpectRefused(ReadIMEI_ASCII(phone, nullptr), 58);
}

}  // namespace
}  // namespace merovane::test
