// The calibration commands of one request. One export of each kind of calibration item stands for
// all of it: the others differ from it in the numbers of their declaration, which the stations'
// tests try.
#include "commands/exchange_rows.h"

#include "commands/calibration/calibration_fixture.h"
#include "declared/calibration_data.h"
#include "declared/gsm_calibration.h"
#include "declared/multi_chip_calibration.h"
#include "declared/multi_chip_data.h"
#include "declared/td_calibration.h"

namespace merovane::test {
namespace {

const QV_AFC_PARAMETERS kTrim{{1, 2, 3, 4}};
const QV_AGC_PARAMETERS kMeasurement{0, {61, 0x1234, 260, 7}, 0};
const QV_POWER_STEP kStep{0x01020304, 5, 6, 0x0708090A};
const QV_POWER_STEP kFactor{QV_BAND_DCS, 15, 0x0BCD, 2};
const QV_TD_TX_SWEEP kSweep{0x01020304, 5, 6, 2, {{0x0708, 9}, {10, 11}, {12, 13}}};
const QV_TD_TX_START kStart{0x01020304, 5, 6, 0x0708090A, {11, 12, 13, 14, 0x0F10}};
const QV_TD_POWER_SWEEP kPower{0x01020304, 5, 6, 0x0708090A, {11, 12, 13, 0x0F10}};
const QV_NON_SIGNAL_COMMAND kNonSignal{0xAAAA0102, 0x10005, 0xBBBB0506, {11, 12, 13, 0x1415}};
const QV_TD_PARAMETERS kParameters{0x01020304, 2, {0x0506, 7}};
const std::uint16_t kUp[20] = {0x0102};
const std::uint16_t kDown[16] = {0x0304, 5};
std::uint16_t temperature[5] = {1, 2, 3, 4, 0x7E7D};
constexpr const char* kPackedImei = "4A 09 51 24 30 32 57 81";
constexpr const char* kImeiText = "34 39 30 31 35 34 32 30 33 32 33 37 35 31 38 00";

}  // namespace

std::vector<Row> CalibrationRows(const Fields& message) {
  const auto header = [&](std::initializer_list<unsigned> words) { return Words(message, words); };
  const auto calibration = [&](unsigned id, unsigned length) {
    return Words(message, {id, length}).Zeros(12);
  };
  const auto power = [&](unsigned id, unsigned length) {
    return Words(calibration(id, length).U32(0x01020304), {5, 6});
  };
  Fields ramps = Words(calibration(0xA118, 88).U32(3), {1, 0x0102}).Zeros(30);
  const auto received = [&] { return Fields(message).Raw("C1 C2 C3 C4 C5 C6"); };
  const Payload done("DE AD");
  const Fields imeiItem = header({5}), imei = Fields(imeiItem).Raw(kPackedImei);
  const std::vector<Result> lacking = {Result::WrongDataLength};
  const std::vector<Result> failing = {Result::ParseFailed};
  // clang-format off
  return {
      // Calibration messages.
      {{"Active:"}, 51, 1000, {10, 0, calibration(0xA101, 16)}, {0, {}}, "", Does(Active, 0x100)},
      {{"DeActive:"}, 51, 1000, {10, 0, calibration(0xA102, 16)}, {0, {}}, "", Does(Active, 0)},
      {{"SetPhoneClassmark:"}, 52, 1000, {10, 0, calibration(0xA103, 20).U32(0)}, {0, {}}, "",
       Does(SetPhoneClassmark, 0)},
      {{"SetPhoneClassmark:"}, 52, 1000, {10, 0, calibration(0xA103, 20).U32(4)}, {0, {}}, "",
       Does(SetPhoneClassmark, 4)},
      // The first value in third place.
      {{"AfcStart:"}, 53, 1000, {10, 0, Words(calibration(0xA114, 24), {2, 3, 1, 4})}, {0, {}}, "",
       Does(AfcStart, 1, &kTrim)},
      {{"AfcStop:"}, 53, 1000, {10, 0, calibration(0xA115, 16)}, {0, {}}, "",
       Does(AfcStart, 0, nullptr)},
      {{"AfcStopEx:"}, 54, 1000, {10, 1, calibration(0xA125, 16)}, {1, {}}, "",
       Does(AfcStartEx, 0, nullptr)},
      {{"AgcStop:"}, 55, 1000, {10, 0, calibration(0xA112, 16)}, {0, {}}, "",
       Does(AgcStart, 0, nullptr, nullptr)},
      {{"RampSetting:"}, 63, 1000,
       {10, 0, ramps.U16(0x0304).U16(5).Zeros(30)},
       {0, {}}, "", Does(RampSetting, 0x10000, kUp, kDown, 3)},
      {{"PwrStepFactorSet:"}, 56, 1000, {10, 0, power(0xA119, 28).U32(0x0708090A)}, {0, {}}, "",
       Does(PwrStepFactorSet, &kStep)},
      // The high half of the amplifier's last field is in the station's order in either case.
      {{"PASetting:"}, 64, 1000, {10, 0, power(0xA11A, 28).U16(0x090A).Raw("08 07")}, {0, {}}, "",
       Does(PASetting, &kStep)},
      {{"TDTxSweep:"}, 260, 1000,
       {10, 0, Words(power(0xA12A, 60), {2, 0x0708, 9, 10, 11}).Zeros(26)}, {0, {}}, "",
       Does(TDTxSweep, &kSweep)},
      {{"TdStartTx:"}, 222, 1000,
       {10, 0, Words(power(0xA129, 40).U32(0x0708090A), {11, 12, 13, 14, 0x0F10, 0})}, {0, {}}, "",
       Does(TdStartTx, &kStart)},
      {{"PwrStepFactorSweepSet_TD:"}, 171, 1000,
       {10, 0, Words(power(0xA128, 36).U32(0x0708090A), {11, 12, 13, 0x0F10})}, {0, {}}, "",
       Does(PwrStepFactorSweepSet_TD, &kPower)},
      {{"PwrStepFactorSet_TD:"}, 173, 1000, {10, 0, power(0xA119, 32).U32(0x0708090A).Zeros(4)},
       {0, {}}, "", Does(PwrStepFactorSet_TD, &kStep)},
      {{"WriteTDCalParam:"}, 181, 1000,
       {36, 1, Words(Fields(message).U32(0x01020304), {2, 0x0506, 7})},
       {1, Fields(message).U32(0).U16(2).U16(0)}, "", Does(WriteTDCalParam, &kParameters), failing},
      // Full power, which awaits nothing.
      {{"EnterMaxTxPowerStatus:"}, 59, 0, {17, 6, {}}, {}, "", Does(EnterMaxTxPowerStatus)},
      {{"LeaveMaxTxPowerStatus:"}, 60, 0, {17, 0, {}}, {}, "", Does(LeaveMaxTxPowerStatus)},
      {{"EnterMaxRxPowerStatus:"}, 61, 0, {17, 5, {}}, {}, "", Does(EnterMaxRxPowerStatus)},
      {{"LeaveMaxRxPowerStatus:"}, 62, 0, {17, 0, {}}, {}, "", Does(LeaveMaxRxPowerStatus)},
      {{"EnterMaxTxPowerStatus_MChip:"}, 59, 0, {17, 6, {}}, {}, "",
       Does(EnterMaxTxPowerStatus_MChip)},
      {{"LeaveMaxTxPowerStatus_MChip:"}, 60, 0, {17, 0, {}}, {}, "",
       Does(LeaveMaxTxPowerStatus_MChip)},
      {{"EnterMaxRxPowerStatus_MChip:"}, 61, 0, {17, 5, {}}, {}, "",
       Does(EnterMaxRxPowerStatus_MChip)},
      {{"LeaveMaxRxPowerStatus_MChip:"}, 62, 0, {17, 0, {}}, {}, "",
       Does(LeaveMaxRxPowerStatus_MChip)},
      // Multi-chip handsets, in the band that was set.
      {{"Active_MChip:"}, 69, 1000, {32, 0, header({0, 3, 27, 0, 2, 1})}, {0, done}, "",
       Does(Active_MChip, 0x100)},
      {{"DeActive_MChip:"}, 69, 1000, {32, 0, header({0, 3, 27, 0, 2, 0})}, {0, done}, "",
       Does(Active_MChip, 0)},
      {{"TxOff_MChip", "TxOff:"}, kOperationBefore, 1000,
       {32, 0, header({0, 3, 28, 0, 20}).Zeros(20)}, {0, done}, "", Does(TxOn_MChip, 0, 1, 1)},
      {{"AfcStop_MChip:", "TxOff:"}, 66, 1000, {32, 0, header({0, 3, 28, 0, 20}).Zeros(20)},
       {0, done}, "", Does(AfcStart_MChip, 0, nullptr)},
      {{"AgcStop_MChip:", "RxOff:"}, 65, 1000,
       {32, 0, header({0, 3, 29, 0, 20, 0x1234, 260}).U32(2).U16(18).Zeros(10)}, {0, done}, "",
       Does(AgcStart_MChip, 0, &kMeasurement, nullptr)},
      // Table 2, level 15; the band is the current one or the record's.
      {{"PwrStepFactorSet_MChip:"}, 70, 1000, {32, 0, header({0, 3, 21, 47, 2, 0x0BCD})}, {0, done},
       "", Does(PwrStepFactorSet_MChip, &kFactor)},
      {{"Set_Flash_8PSK_PWR_FACTOR_MChip:"}, 228, 1000, {32, 0, header({1, 1, 36, 47, 2, 0x0BCD})},
       {0, done}, "", Does(Set_Flash_8PSK_PWR_FACTOR_MChip, &kFactor)},
      {{"Set_Ram_8PSK_PWR_FACTOR_MChip:"}, 229, 1000, {32, 0, header({0, 1, 36, 47, 2, 0x0BCD})},
       {0, done}, "", Does(Set_Ram_8PSK_PWR_FACTOR_MChip, &kFactor)},
      {{"Set_Flash_8PSK_PWR_TX_GAIN_MChip:"}, 240, 1000, {32, 0, header({1, 1, 37, 47, 2, 0x0BCD})},
       {0, done}, "", Does(Set_Flash_8PSK_PWR_TX_GAIN_MChip, &kFactor)},
      {{"Set_Ram_8PSK_PWR_TX_GAIN_MChip:"}, 241, 1000, {32, 0, header({0, 1, 37, 47, 2, 0x0BCD})},
       {0, done}, "", Does(Set_Ram_8PSK_PWR_TX_GAIN_MChip, &kFactor)},
      {{"SendNonSignalCmd(ID = 65541):"}, 259, 5000,
       {32, 0, header({0, 0, 40, 0, 14, 11, 12, 13, 0x1415, 0x0102, 5, 0x0506})},
       {0, "00 00 01 02 03 04 05 06"}, "", Does(SendNonSignalCmd, &kNonSignal, nullptr, 5000),
       {Result::NonSignalFailed}},
      // Calibration data.
      {{"WriteData_Flash_ADC:"}, kOperationBefore, 1000,
       {32, 0, header({1, 0, 1, 200, 4}).U32(0x0A0B0C0D)}, {0, done}, "",
       Does(WriteData_Flash_ADC, 200, 0x0A0B0C0D)},
      {{"SetRampTable_Flash:"}, 142, 1000, {32, 0, header({1, 3, 8, 100, 40, 0x0102}).Zeros(38)},
       {0, done}, "", Does(SetRampTable_Flash, 3, 5, kUp)},
      // The caller's values stay as they are, whatever the byte order.
      {{"RW_TEMPERATURE_TX_RAMPWR_STEP_FACTOR:"}, kOperationBefore, 1000,
       {32, 0, header({1, 0xFFFF, 57, 0, 10, 1, 2, 3, 4, 0x7E7D})}, {0, done}, "",
       Does(RW_TEMPERATURE_TX_RAMPWR_STEP_FACTOR, 0, 9, 0xFFFF, temperature)},
      {{"WriteData_Flash_SecIMEI:"}, 231, 3000, {32, 0, header({1, 0, 35, 0, 8}).Raw(kPackedImei)},
       {0, done}, "", Does(WriteData_Flash_SecIMEI, "490154203237518 and more")},
      {{"SaveToFlash:"}, 169, 20'000, {32, 0, header({1, 0, 32, 0, 0})}, {0, done}, "",
       Does(SaveToFlash, 20'000)},
      {{"ReadData_Flash_ADC_Adc1:"}, 87, 1000, {32, 1, header({1, 0, 1, 1, 4})},
       {1, received().U32(0x01020304).Raw("99 99")}, "04 03 02 01",
       Gets<std::uint32_t>(1, ReadData_Flash_ADC_Adc1), lacking},
      {{"ReadRampTableConstDown_Ram:"}, 153, 1000, {32, 1, header({0, 1, 10, 9, 2})},
       {1, received().U16(0x0708)}, "08 07",
       Gets<std::uint16_t>(
           1, [](Phone& p, auto* to) { return ReadRampTableConstDown_Ram(p, 1, 9, to); }),
       lacking},
      // What an answer lacks stays as it was.
      {{"ReadData_Ram_AGC_RX_compensate_value:"}, 127, 1000, {32, 1, header({0, 1, 18, 0, 6})},
       {1, received().U16(1).U16(0x0203)}, "01 00 03 02 A5 A5",
       Gets<std::uint16_t>(
           3, [](Phone& p, auto* to) { return ReadData_Ram_AGC_RX_compensate_value(p, 1, to, 3); }),
       lacking},
      {{"RW_RF_EDGE_DELTA_TIMING:"}, kOperationBefore, 1000, {32, 1, header({0, 2, 58, 0, 2})},
       {1, received().U16(0x1234)}, "34 12",
       Gets<std::uint16_t>(
           1, [](Phone& p, auto* to) { return RW_RF_EDGE_DELTA_TIMING(p, 9, 0, 2, to); }),
       lacking},
      {{"ReadData_Flash_IMEI:"}, 75, 1000, {32, 1, header({1, 0, 30, 0, 8})},
       {1, received().Raw(kPackedImei)}, kImeiText, Gets<char>(16, ReadData_Flash_IMEI), lacking},
      {{"ReadIMEI:"}, 57, 1000, {13, 0, imeiItem}, {0, imei}, kPackedImei, Gets(8, ReadIMEI),
       failing},
      {{"ReadIMEI_ASCII:"}, 58, 1000, {13, 0, imeiItem}, {0, Fields(imei).Raw("99 99")}, kImeiText,
       Gets<char>(16, ReadIMEI_ASCII), failing},
      {{"ReadMode_TD:"}, 176, 1000, {28, 1, {}}, {1, "01 02 03"}, "01 02 03 A5",
       Gets(4, [](Phone& p, auto* to) { return ReadMode_TD(p, to, 4); })},
  };
  // clang-format on
}

}  // namespace merovane::test
