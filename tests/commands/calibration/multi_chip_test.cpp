#include "commands/calibration/calibration_fixture.h"
#include "commands/calibration/radio_steps.h"
#include "declared/multi_chip_calibration.h"
#include "declared/multi_chip_data.h"

namespace merovane::test {
namespace {

struct MultiChip : CalibrationFixture {
  void ExpectStep(unsigned band, unsigned item, unsigned value) {
    ExpectWrite(Header({0, band, item, 0, 2, value}));
  }
  Fields TransmitterRequest(unsigned band, unsigned on) const {
    const auto& sent = phone.calibration.transmit;
    const Fields start = Header({0, band, 28, 0, 20, 0, 0}).U32(sent.first).Zeros(2).U8(on).U8(0);
    return Words(start, {sent.second, sent.third, sent.fourth, 0});
  }
  Fields ReceiverRequest(unsigned band, unsigned on, unsigned first, unsigned second,
                         unsigned directCurrent = 0) const {
    const Fields start = Header({0, band, 29, 0, 20, first, second}).U32(2).U16(18);
    return Fields(start).U8(on).Zeros(7).U8(directCurrent).U8(0);
  }
  void ExpectWordRead(unsigned band, unsigned item, unsigned value) {
    ExpectRead(Header({0, band, item, 0, 2}), ReadAnswer().U16(value));
  }
};

TEST_F(MultiChip, StepsSendWhatHasChangedAndRepeatWhatFailed) {
  handset.ExpectAnyPayload(32, 0).Silent();
  EXPECT_EQ(steps::SetTch(phone, 62), Result::NoAnswer);
  ExpectStep(0, 19, 62);
  EXPECT_EQ(steps::SetTch(phone, 62), Result::Success);
  EXPECT_EQ(steps::SetTch(phone, 62), Result::Success);
  ExpectStep(0, 6, 5);
  ExpectStep(0, 7, 5);
  ExpectStep(0, 2, 5);
  for (const auto step : {&steps::SetCdac, &steps::SetCafc, &steps::SetCafcCenter}) {
    EXPECT_EQ(step(phone, 0), Result::Success) << "what a handset begins with";
    EXPECT_EQ(step(phone, 5), Result::Success);
    EXPECT_EQ(step(phone, 5), Result::Success);
  }
  // A level is always sent.
  ExpectStep(0, 20, 0);
  ExpectStep(0, 20, 0);
  EXPECT_EQ(steps::SetPcl(phone, 0), Result::Success);
  EXPECT_EQ(steps::SetPcl(phone, 0), Result::Success);
}

TEST_F(MultiChip, TransmitterTakesItsParametersAsTheyWereSet) {
  InBothByteOrders([&] {
    phone.calibration = {};
    EXPECT_EQ(SetPhoneClassmark_MChip(phone, 3), Result::Success);
    EXPECT_EQ(SetTxParam(phone, 0x01020304, 0x0506, 0x0708, 0x090A), Result::Success);
    ExpectStep(3, 19, 700);
    ExpectStep(3, 20, 10);
    ExpectWrite(TransmitterRequest(3, 1));
    EXPECT_EQ(TxOn_MChip(phone, 1, 700, 10), Result::Success);
    EXPECT_TRUE(phone.calibration.transmitterOn);
    ExpectWrite(TransmitterRequest(3, 0));
    static_cast<void>(Log());
    EXPECT_EQ(TxOn_MChip(phone, 0, 1, 1), Result::Success);
    EXPECT_FALSE(phone.calibration.transmitterOn);
    EXPECT_THAT(LogText(), ElementsAre("TxOff_MChip", "TxOff:", "Clear Port Buffer",
                                       ResultLine(Result::Success)));
  });
  // Whose bytes, once: 01020304 from offset 4, the flag at 10, the others from 12.
  EXPECT_EQ(ToHex(handset.Heard().back().payload),
            "00 00 03 00 1C 00 00 00 14 00 00 00 00 00 04 03 02 01 00 00 00 00 06 05 08 07 0A 09 "
            "00 00");
}

TEST_F(MultiChip, FirstFailingStepEndsACommand) {
  const QV_AFC_PARAMETERS afc{{1, 2, 3, 4}};
  const QV_AGC_PARAMETERS agc{0, {700, 2, 3, 4}, 0};
  QV_AGC_RESULT measured{};
  ExpectStep(0, 19, 700);
  ExpectWriteRefused();
  EXPECT_EQ(TxOn_MChip(phone, 1, 700, 10), Result::Refused);
  EXPECT_EQ(phone.calibration.lastPcl, 0);
  ExpectStep(0, 19, 2);
  ExpectStep(0, 20, 3);
  ExpectWriteRefused();
  EXPECT_EQ(AfcStart_MChip(phone, 1, &afc), Result::Refused);
  ExpectRefused(66, CALL(AfcStart_MChip(phone, 1, nullptr)));
  ExpectStep(0, 19, 700);
  ExpectStep(0, 20, 4);
  ExpectWriteRefused();
  EXPECT_EQ(AgcStart_MChip(phone, 1, &agc, &measured), Result::Refused);
}

TEST_F(MultiChip, AgcMeasuresUntilRssiSettles) {
  const QV_AGC_PARAMETERS parameters{0xFFFF'FFFF, {61, 0x1234, 260, 7}, 0xFFFF'FFFF};
  InBothByteOrders([&] {
    phone.calibration = {};
    EXPECT_EQ(SetPhoneClassmark_MChip(phone, 1), Result::Success);
    GuardedBuffer<QV_AGC_RESULT> measured;
    ExpectStep(1, 19, 61);
    ExpectStep(1, 20, 7);
    ExpectWrite(ReceiverRequest(1, 1, 0x1234, 260));
    ExpectWordRead(1, 25, 0);
    handset.ExpectAnyPayload(32, 1).Refuse();
    ExpectWordRead(1, 25, 0x40);
    ExpectWordRead(1, 26, 300);
    const std::uint32_t before = clock.NowMs();
    static_cast<void>(Log());
    EXPECT_EQ(AgcStart_MChip(phone, 1, &parameters, measured.Data()), Result::Success);
    EXPECT_EQ(clock.NowMs() - before, 200U + 2 * 20);
    EXPECT_EQ(measured[0].rssi, 0x40);
    EXPECT_EQ(measured[0].rx_level, 300);
    EXPECT_EQ(measured[0].value, 0xA5A5A5A5);
    const auto log = LogText();
    EXPECT_EQ(log.front(), "AgcStart_MChip:");
    EXPECT_EQ(log[log.size() - 2], "RSSI = 0X40, RxLevel = 300");

    ExpectWrite(ReceiverRequest(1, 0, 0x1234, 260));
    EXPECT_EQ(AgcStart_MChip(phone, 0, &parameters, nullptr), Result::Success);
  });
  QV_AGC_RESULT measured{};
  ExpectRefused(65, CALL(AgcStart_MChip(phone, 1, nullptr, &measured)),
                CALL(AgcStart_MChip(phone, 1, &parameters, nullptr)),
                CALL(AgcStart_MChip(phone, 0, nullptr, nullptr)));
}

TEST_F(MultiChip, RssiOfZeroIsReadAgainUntilAnAnswerLacksIt) {
  std::uint16_t rssi = 9;
  for (int read = 0; read < 5; ++read) ExpectWordRead(0, 25, 0);
  ExpectRead(Header({0, 0, 25, 0, 2}), ReadAnswer());
  EXPECT_EQ(steps::GetRssi(phone, rssi), Result::WrongDataLength);
}

TEST_F(MultiChip, DirectCurrentEndsWithTheReceiverOffWhateverFailed) {
  std::uint16_t first = 7;
  std::uint16_t second = 7;
  const auto failsWith = [&](Result result) {
    ExpectWrite(ReceiverRequest(0, 0, 0, 260));
    EXPECT_EQ(CalDirectCurr(phone, &first, &second), result);
  };
  // In band 0, whichever was set.
  EXPECT_EQ(SetPhoneClassmark_MChip(phone, 4), Result::Success);
  ExpectWriteRefused();
  failsWith(Result::Refused);
  ExpectStep(0, 19, 61);
  handset.Expect(32, 0, ReceiverRequest(0, 1, 0, 260, 1)).Refuse();
  failsWith(Result::Refused);
  ExpectWrite(ReceiverRequest(0, 1, 0, 260, 1));
  ExpectRead(Header({0, 0, 41, 0, 4}), ReadAnswer());
  failsWith(Result::WrongDataLength);
  EXPECT_EQ(first, 7);

  ExpectWrite(ReceiverRequest(0, 1, 0, 260, 1));
  ExpectRead(Header({0, 0, 41, 0, 4}), ReadAnswer().U16(0x1122).U16(0x3344));
  handset.Expect(32, 0, ReceiverRequest(0, 0, 0, 260)).Refuse();
  const std::uint32_t before = clock.NowMs();
  EXPECT_EQ(CalDirectCurr(phone, &first, &second), Result::Success);
  EXPECT_EQ(clock.NowMs() - before, 100U);
  EXPECT_EQ(first, 0x3344);
  EXPECT_EQ(second, 0x1122);
  ExpectRefused(258, CALL(CalDirectCurr(phone, nullptr, &second)),
                CALL(CalDirectCurr(phone, &first, nullptr)));
}

TEST_F(MultiChip, ActivationAndBandAreCheckedAndLogged) {
  EXPECT_EQ(SetPhoneClassmark_MChip(phone, 4), Result::Success);
  ExpectRefused(67, CALL(SetPhoneClassmark_MChip(phone, 2)));
  ExpectStep(4, 27, 1);
  EXPECT_EQ(Active_MChip(phone, 0x100), Result::Success);
  ExpectStep(4, 27, 0);
  EXPECT_EQ(Active_MChip(phone, 0), Result::Success);
  EXPECT_EQ(OperationOf(Result::Success), 69U);
}

struct NonSignal : MultiChip {
  Result Send(std::uint32_t id, QV_NON_SIGNAL_ANSWER* output) {
    const QV_NON_SIGNAL_COMMAND command{0xAAAA0102, id, 0xBBBB0506, {11, 12, 13, 0x1415}};
    return SendNonSignalCmd(phone, &command, output, 5000);
  }
  Exchange& Expect(unsigned id) {
    return handset.Expect(32, 0, Header({0, 0, 40, 0, 14, 11, 12, 13, 0x1415, 0x0102, id, 0x0506}));
  }
  GuardedBuffer<QV_NON_SIGNAL_ANSWER> answer;
};

TEST_F(NonSignal, CommandSixReturnsValues) {
  InBothByteOrders([&] {
    Expect(6).After(4900).Answer(32, 0, Header({0, 0x102, 3, 4, 5}));
    EXPECT_EQ(Send(6, answer.Data()), Result::Success);
    EXPECT_EQ(answer[0].status, 0);
    EXPECT_THAT(answer[0].values, ElementsAre(0x102, 3, 4));
    // A failure fills the output too.
    Expect(6).Answer(32, 0, Header({0x100, 7, 8, 9}));
    EXPECT_EQ(Send(6, answer.Data()), Result::NonSignalFailed);
    EXPECT_EQ(answer[0].status, 0x100);
    EXPECT_THAT(answer[0].values, ElementsAre(7, 8, 9));
  });
}

TEST_F(NonSignal, OtherCommandsReturnTheirStatusAlone) {
  Expect(5).Answer(32, 0, "00 00 01 02 03 04 05 06");
  EXPECT_EQ(Send(0x10005, answer.Data()), Result::Success);
  EXPECT_EQ(LogText().front(), "SendNonSignalCmd(ID = 65541):");
  Expect(5).Answer(32, 0, "00 01 01 02 03 04 05 06");
  EXPECT_EQ(Send(5, nullptr), Result::NonSignalFailed);
  Expect(6).Answer(32, 0, "00 00 00 00 00 00 00");
  EXPECT_EQ(Send(6, answer.Data()), Result::NonSignalFailed);
  EXPECT_TRUE(answer.Untouched());
  ExpectRefused(259, CALL(Send(6, nullptr)),
                CALL(SendNonSignalCmd(phone, nullptr, answer.Data(), 1000)));
}

using MultiChipData = MultiChip;

TEST_F(MultiChipData, PowerFactorGoesToItsLevelsPlace) {
  InBothByteOrders([&] {
    phone.calibration = {};
    EXPECT_EQ(SetPhoneClassmark_MChip(phone, 3), Result::Success);
    // Table 2, level 19 less 5 in bands 0 and 4; the band word is the current band. No check of
    // other bands, which count levels from 0.
    for (const auto& [step, offset] : {std::pair{QV_POWER_STEP{4, 19, 0x0BCD, 2}, 46U},
                                       {QV_POWER_STEP{2, 15, 0x0BCD, 2}, 47U}}) {
      static_cast<void>(Log());
      ExpectWrite(Header({0, 3, 21, offset, 2}).U16(0x0BCD));
      EXPECT_EQ(PwrStepFactorSet_MChip(phone, &step), Result::Success);
      ExpectLogged("PwrStepFactorSet_MChip:");
      EXPECT_EQ(OperationOf(Result::Success), 70U);
    }
  });
}

TEST_F(MultiChipData, FactorsAreWrittenOnceEachToItsOwnPlace) {
  const QV_POWER_STEP step{1, 0, 0, 0};
  const QV_POWER_STEP wrongBand{2, 0, 0, 0};
  const auto expectOnce = [&](Result (*factor)(Phone&, const QV_POWER_STEP*), unsigned storage,
                              unsigned item, std::uint32_t operation) {
    SCOPED_TRACE(operation);
    // A failed write is repeated, a good one not; zeros are a value as any other.
    handset.ExpectAnyPayload(32, 0).Silent();
    EXPECT_EQ(factor(phone, &step), Result::NoAnswer);
    EXPECT_EQ(OperationOf(Result::NoAnswer), operation);
    ExpectWrite(Header({storage, 1, item, 0, 2}).U16(0));
    EXPECT_EQ(factor(phone, &step), Result::Success);
    EXPECT_EQ(factor(phone, &step), Result::Success);
    ExpectRefused(operation, CALL(factor(phone, nullptr)), CALL(factor(phone, &wrongBand)));
  };
  expectOnce(Set_Flash_8PSK_PWR_FACTOR_MChip, 1, 36, 228);
  expectOnce(Set_Ram_8PSK_PWR_FACTOR_MChip, 0, 36, 229);
  expectOnce(Set_Ram_8PSK_PWR_TX_GAIN_MChip, 0, 37, 241);
  ExpectRefused(70, CALL(PwrStepFactorSet_MChip(phone, nullptr)));
}

TEST_F(MultiChipData, RampsComeInPairs) {
  InBothByteOrders([&] {
    GuardedBuffer<std::uint16_t> first(16);
    GuardedBuffer<std::uint16_t> second(16);
    ExpectRead(Header({1, 3, 9, 0, 32}), ReadAnswer().U16(0x1234).Zeros(40));
    ExpectRead(Header({1, 3, 11, 0, 32}), ReadAnswer().U16(0x5678));
    EXPECT_EQ(ReadRamp_Flash_MChip(phone, 1, first.Data(), second.Data(), 3), Result::Success);
    EXPECT_EQ(OperationOf(Result::Success), 140U);
    EXPECT_EQ(first[0], 0x1234);
    EXPECT_EQ(first[15], 0);
    EXPECT_EQ(second[0], 0x5678);
    EXPECT_TRUE(second.UntouchedFrom(1));

    const std::array<std::uint16_t, 16> up{0x0102, 2};
    const std::array<std::uint16_t, 16> down{0x0304, 4};
    static_cast<void>(Log());
    ExpectWrite(Header({0, 4, 8, 0, 32}).U16(0x0102).U16(2).Zeros(28));
    ExpectWrite(Header({0, 4, 10, 0, 32}).U16(0x0304).U16(4).Zeros(28));
    EXPECT_EQ(RampSetting_Ram_MChip(phone, 0, up.data(), down.data(), 4), Result::Success);
    EXPECT_EQ(LogText().front(), "RampSetting_Ram_MChip:");
    ExpectWriteRefused();
    EXPECT_EQ(RampSetting_Flash_MChip(phone, 1, up.data(), down.data(), 4), Result::Refused);
  });
  std::uint16_t table[16] = {};
  ExpectRefused(138, CALL(ReadRamp_Ram_MChip(phone, 1, nullptr, table, 0)));
  ExpectRefused(137, CALL(RampSetting_Ram_MChip(phone, 1, table, nullptr, 0)));
  ExpectRefused(139, CALL(RampSetting_Flash_MChip(phone, 1, table, table, 2)));
}

}  // namespace
}  // namespace merovane::test
