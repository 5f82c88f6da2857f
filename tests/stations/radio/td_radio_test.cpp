// TD-SCDMA commands against the radio.
#include <vector>

#include "stations/radio/calibrated_station.h"

namespace merovane::test {
namespace {

constexpr std::int32_t kTooFewValues = 13;
constexpr std::int32_t kRefused = 39;

using TdRadio = CalibratedStation;

TEST_F(TdRadio, MessagesAreTakenInTdModeOnly) {
  const QV_TD_TX_SWEEP sweep{1, 2, 3, 8, {{4, 5}}};
  const QV_TD_TX_START start{1, 2, 3, 4, {5}};
  const QV_TD_POWER_SWEEP powerSweep{1, 2, 3, 4, {5}};
  const QV_POWER_STEP step{0, 5, 1024, 2};
  struct Mode {
    std::int32_t mode, td, gsm;
  };
  ASSERT_EQ(QV_Active_MT(kPort, 1), PC_ERR_SUCCESS);
  for (const Mode& mode : {Mode{7, PC_ERR_SUCCESS, kRefused}, {1, kRefused, PC_ERR_SUCCESS}}) {
    for (const auto change : {QV_ChangeGSMTDCalMode_MT, QV_InitGSMTDCalMode_MT}) {
      ASSERT_EQ(change(kPort, mode.mode), PC_ERR_SUCCESS);
      EXPECT_EQ(phone->Status("radio.calibration_mode"), mode.mode == 7 ? "TD-SCDMA" : "GSM");
    }
    EXPECT_EQ(QV_TDTxSweep_MT(kPort, &sweep), mode.td);
    EXPECT_EQ(QV_TdStartTx_MT(kPort, &start), mode.td);
    EXPECT_EQ(QV_PwrStepFactorSweepSet_TD_MT(kPort, &powerSweep), mode.td);
    EXPECT_EQ(QV_PwrStepFactorSet_TD_MT(kPort, &step), mode.td);
    EXPECT_EQ(QV_PwrStepFactorSet_MT(kPort, &step), mode.gsm) << "one number, two lengths";
  }
}

TEST_F(TdRadio, ParametersAreKeptBySelector) {
  for (const auto& [selector, count] :
       {std::pair{3U, std::uint16_t{3073}}, {0x12345678U, std::uint16_t{2}}}) {
    QV_TD_PARAMETERS written{selector, count, {}};
    for (std::uint16_t i = 0; i < count; ++i)
      written.values[i] = static_cast<std::uint16_t>(0x1200 + i);
    ASSERT_EQ(QV_WriteTDCalParam_MT(kPort, &written), PC_ERR_SUCCESS);
    Restart();
    QV_TD_PARAMETERS read{selector, count, {}};
    ASSERT_EQ(QV_ReadTDCalParam_MT(kPort, &read), PC_ERR_SUCCESS);
    EXPECT_EQ(std::vector(read.values, read.values + count),
              std::vector(written.values, written.values + count));
  }
  QV_TD_PARAMETERS more{0x12345678, 3, {}};
  EXPECT_EQ(QV_ReadTDCalParam_MT(kPort, &more), kTooFewValues);
}

}  // namespace
}  // namespace merovane::test
