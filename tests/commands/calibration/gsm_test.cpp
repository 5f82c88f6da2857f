#include <numeric>
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
  EXPECT_THAT(LogText(), ElementsAre("Change to GSM CAL Mode:", "Clear Port Buffer",
                                     "Read _CNF:", ResultLine(Result::NoAnswer)));
  const std::uint32_t before = clock.NowMs();
  handset.ExpectAnyPayload(10, 0).Silent();
  EXPECT_EQ(ChangeGSMTDCalMode(phone, 1), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 3000U);
  ExpectLogged("Change to GSM CAL Mode:", Result::NoAnswer);
}

TEST_F(CalibrationMode, OfTheOtherPathIsAskedForWhateverComesBack) {
  InBothByteOrders([&] {
    handset.Expect(32, 0, Header({0, 0, 43, 0, 0})).Refuse();
    EXPECT_EQ(ChangeGSMTDCalMode(phone, 7), Result::Success);
    ExpectLogged("Change to TD CAL Mode:");
    handset.Expect(32, 0, Header({0, 0, 42, 0, 0})).Silent();
    EXPECT_EQ(InitGSMTDCalMode(phone, 1), Result::Success);
    ExpectLogged("Init GSM CAL Mode:");
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
  ExpectRefused(52, CALL(SetPhoneClassmark(phone, 2)), CALL(SetPhoneClassmark(phone, 5)),
                CALL(SetPhoneClassmark(phone, 0x10000)));
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
    const std::uint32_t before = clock.NowMs();
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
    ExpectLogged("AgcStop:");
  });
}

TEST_F(Receiver, TakesNothingFromBehindAShortReport) {
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
  EXPECT_EQ(Measure(), Result::NoData);
  handset.ExpectAnyPayload(10, 0).Silent();
  EXPECT_EQ(Measure(), Result::NoAnswer);
  ExpectRefused(55, CALL(AgcStart(phone, 1, nullptr, measured.Data())),
                CALL(AgcStart(phone, 1, &parameters, nullptr)));
  EXPECT_TRUE(measured.Untouched());
}

using Transmitter = CalibrationFixture;

TEST_F(Transmitter, TakesItsSettings) {
  const QV_AFC_PARAMETERS trim{{1, 2, 3, 4}};
  const QV_POWER_STEP step{0x01020304, 0x0506, 0x0708, 0x090A0B0C};
  std::array<std::uint16_t, 16> up{};
  std::array<std::uint16_t, 16> down{};
  std::iota(up.begin(), up.end(), std::uint16_t{0x101});
  std::iota(down.begin(), down.end(), std::uint16_t{0x201});
  InBothByteOrders([&] {
    // The first value in third place.
    ExpectMessage(Words(Message(0xA114, 24), {2, 3, 1, 4}));
    EXPECT_EQ(AfcStart(phone, 1, &trim), Result::Success);
    ExpectMessage(Message(0xA115, 16));
    EXPECT_EQ(AfcStart(phone, 0, nullptr), Result::Success);

    ExpectMessage(Words(Message(0xA119, 28).U32(0x01020304), {0x0506, 0x0708}).U32(0x090A0B0C));
    EXPECT_EQ(PwrStepFactorSet(phone, &step), Result::Success);
    // The high half of the amplifier's last field is in the station's order in either case.
    ExpectMessage(
        Words(Message(0xA11A, 28).U32(0x01020304), {0x0506, 0x0708, 0x0B0C}).Raw("0A 09"));
    EXPECT_EQ(PASetting(phone, &step), Result::Success);

    Fields ramps = Words(Message(0xA118, 88).U32(3), {1});
    for (const auto& ramp : {up, down}) {
      for (const std::uint16_t point : ramp) ramps.U16(point);
    }
    ExpectMessage(ramps.Zeros(2));
    EXPECT_EQ(RampSetting(phone, 0x10000, up.data(), down.data(), 3), Result::Success);
  });
  ExpectRefused(53, CALL(AfcStart(phone, 1, nullptr)));
  ExpectRefused(56, CALL(PwrStepFactorSet(phone, nullptr)));
  ExpectRefused(64, CALL(PASetting(phone, nullptr)));
  ExpectRefused(63, CALL(RampSetting(phone, 0, up.data(), down.data(), 2)),
                CALL(RampSetting(phone, 0, nullptr, down.data(), 3)),
                CALL(RampSetting(phone, 0, up.data(), nullptr, 3)));
}

TEST_F(Transmitter, EntersFullPowerWithoutWaiting) {
  const std::uint32_t before = clock.NowMs();
  handset.Expect(17, 6);
  EXPECT_EQ(EnterMaxTxPowerStatus(phone), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 59U);
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
  ExpectRefused(57, CALL(ReadIMEI(phone, nullptr)));
  ExpectRefused(58, CALL(ReadIMEI_ASCII(phone, nullptr)));
}

}  // namespace
}  // namespace merovane::test
