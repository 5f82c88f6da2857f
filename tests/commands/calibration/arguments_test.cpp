#include "commands/calibration/calibration_fixture.h"
#include "declared/calibration_data.h"
#include "declared/gsm_calibration.h"
#include "declared/multi_chip_calibration.h"
#include "declared/multi_chip_data.h"
#include "declared/td_calibration.h"

namespace merovane::test {
namespace {

using CalibrationArguments = CalibrationFixture;

TEST_F(CalibrationArguments, AreRefusedWithoutATrace) {
  std::vector<std::uint16_t> data(32758);
  std::uint16_t* const some = data.data();
  std::uint16_t* const null = nullptr;
  const QV_AGC_PARAMETERS parts{};
  QV_AGC_RESULT measured{};
  QV_EXTENDED_AFC run{};
  run.count = 17;
  QV_TD_TX_SWEEP sweep{};
  sweep.count = 9;
  QV_TD_PARAMETERS parameters{};
  const QV_POWER_STEP wrongBand{2, 0, 0, 0};
  const QV_NON_SIGNAL_COMMAND six{0, 6, 0, {}};
  std::uint8_t bytes[4];

  const auto refused = [](std::initializer_list<Result> results) {
    EXPECT_THAT(results, ::testing::Each(Result::InvalidParam));
  };
  refused({AfcStartEx(phone, 1, nullptr), AfcStartEx(phone, 1, &run),
           AgcStart(phone, 1, nullptr, &measured), AgcStart(phone, 1, &parts, nullptr),
           RampSetting(phone, 0, some, some, 2), RampSetting(phone, 0, null, some, 3),
           RampSetting(phone, 0, some, null, 3), AgcStart_MChip(phone, 1, nullptr, &measured),
           AgcStart_MChip(phone, 1, &parts, nullptr), AfcStart_MChip(phone, 1, nullptr),
           Set_Flash_8PSK_PWR_FACTOR_MChip(phone, &wrongBand),
           Set_Ram_8PSK_PWR_FACTOR_MChip(phone, &wrongBand),
           Set_Flash_8PSK_PWR_TX_GAIN_MChip(phone, &wrongBand),
           Set_Ram_8PSK_PWR_TX_GAIN_MChip(phone, &wrongBand),
           RampSetting_Ram_MChip(phone, 1, some, null, 0),
           ReadRamp_Ram_MChip(phone, 1, null, some, 0),
           RampSetting_Flash_MChip(phone, 1, some, some, 2),
           ReadRamp_Flash_MChip(phone, 1, some, some, 2), CalDirectCurr(phone, null, some),
           CalDirectCurr(phone, some, null), SendNonSignalCmd(phone, &six, nullptr, 1),
           // It would begin after what the offset word can say.
           ReadRampTable_Ram(phone, 0, 3277, some), TDTxSweep(phone, &sweep),
           ReadMode_TD(phone, bytes, 0), ReadTDCalParam(phone, nullptr),
           WriteTDCalParam(phone, nullptr)});
  for (const std::uint32_t band : {2U, 5U, 0x10000U}) {
    refused({SetPhoneClassmark(phone, band), SetPhoneClassmark_MChip(phone, band),
             ReadData_Ram_AGC_max_rf_gain_index(phone, band, some)});
  }
  for (const std::uint32_t count : {0U, 32759U, 0x8000U, 0x80000001U, UINT32_MAX}) {
    refused({WriteData_Flash_AGC_RX_compensate_value(phone, 0, some, count)});
  }
  for (const char* text : {"", "49015420323751", "49015420323751x", "4901542 3237518"}) {
    refused({WriteData_Flash_IMEI(phone, text)});
  }
  for (const int count : {0, 3074, 65535}) {
    parameters.count = static_cast<std::uint16_t>(count);
    refused({WriteTDCalParam(phone, &parameters)});
  }
  EXPECT_EQ(OperationOf(Result::InvalidParam), 181U);
  EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(CalibrationArguments, MayJustFit) {
  std::vector<std::uint16_t> data(32758, 0x7E);
  handset.ExpectAnyPayload(32, 0).Answer(32, 0);
  EXPECT_EQ(WriteData_Flash_AGC_RX_compensate_value(phone, 0, data.data(), 32758), Result::Success);
  EXPECT_EQ(handset.Heard().back().payload.size(), 10U + 2 * data.size());
  ExpectRead(Header({0, 0, 8, 65520, 40}), ReadAnswer().Zeros(40));
  EXPECT_EQ(ReadRampTable_Ram(phone, 0, 3276, data.data()), Result::Success);

  QV_TD_TX_SWEEP sweep{};
  sweep.count = 8;
  for (auto& point : sweep.points) point[0] = point[1] = 0xFFFF;
  handset.Expect(10, 0, Message(0xA12A, 60).Zeros(8).U16(8).Raw(Bytes(32, 0xFF)).Zeros(2))
      .Answer(10, 0);
  EXPECT_EQ(TDTxSweep(phone, &sweep), Result::Success);
}

}  // namespace
}  // namespace merovane::test
