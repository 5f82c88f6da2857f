// Commands for multi-chip handsets: what their steps send, log and remember.
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

TEST_F(MultiChip, StepsWaitAsLongAsTheirLimits) {
  std::uint16_t value = 0;
  const auto waits = [&](std::uint32_t waitedMs, std::size_t requests, std::uint8_t subtype,
                         const std::function<Result()>& step) {
    for (; requests > 0; --requests) handset.ExpectAnyPayload(32, subtype).Silent();
    ExpectTakes(waitedMs, Result::NoAnswer, [&] { return step(); });
  };
  waits(1000, 1, 0, [&] { return steps::SetTch(phone, 1); });
  waits(1000, 1, 0, [&] { return steps::SwitchTransmitter(phone, true); });
  waits(1000, 1, 0, [&] { return steps::SwitchReceiver(phone, true, {}); });
  waits(6 * 3000 + 5 * 20, 6, 1, [&] { return steps::GetRssi(phone, value); });
  waits(3000, 1, 1, [&] { return steps::GetRxLevel(phone, value); });
  waits(3000, 1, 1, [&] { return steps::GetDirectCurrent(phone, value, value); });
}

TEST_F(MultiChip, TransmitterTakesItsParametersAsTheyWereSet) {
  const QV_AFC_PARAMETERS trim{{1, 2, 3, 4}};
  InBothByteOrders([&] {
    phone.calibration = {};
    EXPECT_EQ(SetPhoneClassmark_MChip(phone, 3), Result::Success);
    EXPECT_EQ(OperationOf(Result::Success), 67U);
    EXPECT_EQ(SetTxParam(phone, 0x01020304, 0x0506, 0x0708, 0x090A), Result::Success);
    EXPECT_THAT(LogNames(), ElementsAre(ResultLine(Result::Success), ResultLine(Result::Success)));
    ExpectStep(3, 19, 700);
    ExpectStep(3, 20, 10);
    ExpectWrite(TransmitterRequest(3, 1));
    EXPECT_EQ(TxOn_MChip(phone, 1, 700, 10), Result::Success);
    EXPECT_TRUE(phone.calibration.transmitterOn);
    EXPECT_THAT(
        LogNames(),
        ElementsAre("TxOn_MChip:", "SetTch:", "SetPcl:", "TxOn:", ResultLine(Result::Success)));

    ExpectStep(3, 19, 2);
    ExpectStep(3, 20, 3);
    ExpectStep(3, 2, 1);
    ExpectWrite(TransmitterRequest(3, 1));
    EXPECT_EQ(AfcStart_MChip(phone, 1, &trim), Result::Success);
    ExpectLogged({"AfcStart_MChip:", "SetTch:", "SetPcl:", "SetCAFC_CENTER:", "TxOn:"});
    EXPECT_EQ(SetPhoneAfcMode(phone, 0x100), Result::Success);
    ExpectLogged({});
    ExpectStep(3, 20, 3);
    ExpectStep(3, 6, 1);
    ExpectStep(3, 7, 4);
    ExpectWrite(TransmitterRequest(3, 1));
    EXPECT_EQ(AfcStart_MChip(phone, 1, &trim), Result::Success);
    ExpectLogged({"AfcStart_MChip:", "SetPcl:", "SetCDAC:", "SetCAFC:", "TxOn:"});
    ExpectWrite(TransmitterRequest(3, 0));
    EXPECT_EQ(TxOn_MChip(phone, 0, 1, 1), Result::Success);
    EXPECT_FALSE(phone.calibration.transmitterOn);
    static_cast<void>(Log());
  });
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
  ExpectStep(0, 19, 700);
  ExpectStep(0, 20, 4);
  ExpectWriteRefused();
  EXPECT_EQ(AgcStart_MChip(phone, 1, &agc, &measured), Result::Refused);
  EXPECT_EQ(LogNames().back(), ResultLine(Result::Refused));
}

TEST_F(MultiChip, AgcMeasuresUntilRssiSettles) {
  const QV_AGC_PARAMETERS parameters{0xFFFF'FFFF, {61, 0x1234, 260, 7}, 0xFFFF'FFFF};
  InBothByteOrders([&] {
    phone.calibration = {};
    phone.calibration.currentBand = 1;
    GuardedBuffer<QV_AGC_RESULT> measured;
    ExpectStep(1, 19, 61);
    ExpectStep(1, 20, 7);
    ExpectWrite(ReceiverRequest(1, 1, 0x1234, 260));
    ExpectWordRead(1, 25, 0);
    handset.ExpectAnyPayload(32, 1).Refuse();
    ExpectWordRead(1, 25, 0x40);
    ExpectWordRead(1, 26, 300);
    static_cast<void>(Log());
    ExpectTakes(200U + 2 * 20, Result::Success,
                [&] { return AgcStart_MChip(phone, 1, &parameters, measured.Data()); });
    EXPECT_EQ(measured[0].rssi, 0x40);
    EXPECT_EQ(measured[0].rx_level, 300);
    EXPECT_EQ(measured[0].value, 0xA5A5A5A5);
    ExpectLogged({"AgcStart_MChip:", "SetTch:", "SetPcl:", "RxOn:", "GetRssi:", "GetRxLevel:",
                  "RSSI = 0X40, RxLevel = 300"});
  });
}

TEST_F(MultiChip, RssiOfZeroIsReadSixTimes) {
  std::uint16_t rssi = 9;
  for (int read = 0; read < 6; ++read) ExpectWordRead(0, 25, 0);
  EXPECT_EQ(steps::GetRssi(phone, rssi), Result::InvalidRssi);
  EXPECT_EQ(rssi, 0);
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
    EXPECT_EQ(LogNames().back(), ResultLine(result));
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
  ExpectTakes(100U, Result::Success, [&] { return CalDirectCurr(phone, &first, &second); });
  EXPECT_EQ(first, 0x3344);
  EXPECT_EQ(second, 0x1122);
  EXPECT_EQ(OperationOf(Result::Success), 258U);
  ExpectLogged({"GetDirectCurr:", "RxOn:", "GetDirectCurr:", "RxOff:"});
}

TEST_F(MultiChip, NonSignallingCommandSixReturnsValues) {
  GuardedBuffer<QV_NON_SIGNAL_ANSWER> answer;
  const auto send = [&](std::uint32_t id, QV_NON_SIGNAL_ANSWER* output) {
    const QV_NON_SIGNAL_COMMAND command{1, id, 3, {4, 5, 6, 7}};
    return SendNonSignalCmd(phone, &command, output, 5000);
  };
  handset.ExpectAnyPayload(32, 0).Answer(32, 0, "00 00 00 00 00 00 00");
  EXPECT_EQ(send(6, answer.Data()), Result::NonSignalFailed);
  EXPECT_TRUE(answer.Untouched());
  handset.ExpectAnyPayload(32, 0).Answer(32, 0, "00 01 01 02 03 04 05 06");
  EXPECT_EQ(send(5, nullptr), Result::NonSignalFailed);
  InBothByteOrders([&] {
    handset.ExpectAnyPayload(32, 0).Answer(32, 0, Header({0, 0x102, 3, 4, 5}));
    EXPECT_EQ(send(6, answer.Data()), Result::Success);
    EXPECT_EQ(answer[0].status, 0);
    EXPECT_THAT(answer[0].values, ElementsAre(0x102, 3, 4));
    // A failure fills the output too.
    handset.ExpectAnyPayload(32, 0).Answer(32, 0, Header({0x100, 7, 8, 9}));
    EXPECT_EQ(send(6, answer.Data()), Result::NonSignalFailed);
    EXPECT_EQ(answer[0].status, 0x100);
    EXPECT_THAT(answer[0].values, ElementsAre(7, 8, 9));
    EXPECT_EQ(LogNames().back(), ResultLine(Result::NonSignalFailed));
  });
}

using MultiChipData = MultiChip;

TEST_F(MultiChipData, PowerFactorGoesToItsLevelsPlace) {
  EXPECT_EQ(SetPhoneClassmark_MChip(phone, 3), Result::Success);
  // Table 2, level 19 less 5 in bands 0 and 4. Other bands, which nothing checks here, count levels
  // from 0.
  for (const auto& [step, offset] : {std::pair{QV_POWER_STEP{4, 19, 1, 2}, 46U},
                                     {QV_POWER_STEP{0, 18, 1, 2}, 45U},
                                     {QV_POWER_STEP{2, 15, 1, 2}, 47U}}) {
    ExpectWrite(Header({0, 3, 21, offset, 2, 1}));
    EXPECT_EQ(PwrStepFactorSet_MChip(phone, &step), Result::Success);
  }
}

TEST_F(MultiChipData, FactorsAreWrittenOnceEachToItsOwnPlace) {
  const QV_POWER_STEP step{1, 0, 0, 0};
  for (const auto factor :
       {PwrStepFactorSet_MChip, Set_Flash_8PSK_PWR_FACTOR_MChip, Set_Ram_8PSK_PWR_FACTOR_MChip,
        Set_Flash_8PSK_PWR_TX_GAIN_MChip, Set_Ram_8PSK_PWR_TX_GAIN_MChip}) {
    // A failed write is repeated, a good one not; zeros are a value as any other.
    handset.ExpectAnyPayload(32, 0).Silent();
    EXPECT_EQ(factor(phone, &step), Result::NoAnswer);
    handset.ExpectAnyPayload(32, 0).Answer(32, 0);
    EXPECT_EQ(factor(phone, &step), Result::Success);
    static_cast<void>(Log());
    EXPECT_EQ(factor(phone, &step), Result::Success);
    EXPECT_EQ(LogNames().back(), ResultLine(Result::Success));
  }
}

TEST_F(MultiChipData, RampsAreWrittenAndReadInPairs) {
  const std::array<std::uint16_t, 16> up{0x0102, 2};
  const std::array<std::uint16_t, 16> down{0x0304, 4};
  GuardedBuffer<std::uint16_t> first(16);
  GuardedBuffer<std::uint16_t> second(16);
  const auto moves = [&](const char* storageName, auto write, auto read, std::uint32_t operation,
                         unsigned storage, unsigned firstItem) {
    const unsigned flag = storage * 0x100;
    ExpectWrite(Header({storage, 4, firstItem, 0, 32}).U16(0x0102).U16(2).Zeros(28));
    ExpectWrite(Header({storage, 4, firstItem + 2, 0, 32}).U16(0x0304).U16(4).Zeros(28));
    EXPECT_EQ(write(phone, flag, up.data(), down.data(), 4), Result::Success);
    EXPECT_EQ(OperationOf(Result::Success), operation);
    ExpectLogged({std::string("RampSetting_") + storageName});
    ExpectRead(Header({storage, 3, firstItem, 0, 32}), ReadAnswer().U16(0x1234).Zeros(40));
    ExpectRead(Header({storage, 3, firstItem + 2, 0, 32}), ReadAnswer().U16(0x5678));
    EXPECT_EQ(read(phone, flag, first.Data(), second.Data(), 3), Result::Success);
    EXPECT_EQ(OperationOf(Result::Success), operation + 1);
    ExpectLogged({std::string("ReadRamp_") + storageName});
    EXPECT_THAT((std::array{first[0], first[15], second[0]}), ElementsAre(0x1234, 0, 0x5678));
    EXPECT_TRUE(second.UntouchedFrom(1));
    ExpectWriteRefused();
    EXPECT_EQ(write(phone, flag, up.data(), down.data(), 4), Result::Refused);
    static_cast<void>(Log());
  };
  InBothByteOrders([&] {
    moves("Ram_MChip:", RampSetting_Ram_MChip, ReadRamp_Ram_MChip, 137, 0, 8);
    moves("Flash_MChip:", RampSetting_Flash_MChip, ReadRamp_Flash_MChip, 139, 1, 9);
  });
}

}  // namespace
}  // namespace merovane::test
