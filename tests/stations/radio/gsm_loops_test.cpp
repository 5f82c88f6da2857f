// The loops of a GSM calibration against what this handset really is.
#include <cmath>
#include <vector>

#include "stations/radio/calibrated_station.h"

namespace merovane::test {
namespace {

class GsmLoops : public CalibratedStation {
 protected:
  void Begin(std::uint64_t seed) {
    Connect(seed);
    ASSERT_EQ(calibration_begin(kPort), PC_ERR_SUCCESS);
  }
  // The example's row and the handset's constants of one band.
  struct BandPair {
    const CALIBRATION_BAND* row;
    const Band* constants;
  };
  std::vector<BandPair> Bands() const {
    std::vector<BandPair> pairs;
    for (const CALIBRATION_BAND& row : calibration_bands) {
      pairs.push_back({&row, truth->Band(row.band)});
    }
    return pairs;
  }
};

INSTANTIATE_TEST_SUITE_P(ByteOrders, GsmLoops, ::testing::Values(true, false));

TEST_P(GsmLoops, CrystalLoopFindsEachHandsetsCentreAndSlope) {
  for (const std::uint64_t seed : {1, 2, 77}) {
    SCOPED_TRACE(seed);
    Begin(seed);
    GSM_CALIBRATION found{};
    ASSERT_EQ(calibrate_crystal(kPort, &found), PC_ERR_SUCCESS);
    EXPECT_NEAR(found.centre_dac, truth->centreDac, 1.0);
    EXPECT_NEAR(found.hz_per_step, truth->hzPerStep, 0.02);
    // The centre moves with the temperature, which a calibration at another one would mistake.
    ASSERT_TRUE(Ask("AT+SIMTEMP=500"));
    QV_AFC_PARAMETERS afc{{static_cast<std::uint16_t>(std::lround(found.centre_dac)), 62, 5, 0}};
    ASSERT_EQ(QV_AfcStart_MT(kPort, 1, &afc), PC_ERR_SUCCESS);
    EXPECT_NEAR(FrequencyError(), 25 * truth->hzPerDegree, 5.0);
  }
}

TEST_P(GsmLoops, WrongOrderPlaceOrBandDoesNotConverge) {
  Begin(1);
  GSM_CALIBRATION found{};
  // The DAC in another field of the record leaves the crystal where it is.
  double errors[2];
  for (const std::uint16_t dac : {std::uint16_t{3800}, std::uint16_t{4400}}) {
    QV_AFC_PARAMETERS afc{{4096, 62, 5, dac}};
    ASSERT_EQ(QV_AfcStart_MT(kPort, 1, &afc), PC_ERR_SUCCESS);
    errors[dac == 4400] = FrequencyError();
  }
  EXPECT_NEAR(errors[0], errors[1], 5.0);
  // A channel of one band in another: nothing to measure.
  ASSERT_EQ(QV_SetPhoneClassmark_MT(kPort, 1), PC_ERR_SUCCESS);
  QV_AFC_PARAMETERS afc{{4096, 62, 5, 0}};
  ASSERT_EQ(QV_AfcStart_MT(kPort, 1, &afc), PC_ERR_SUCCESS);
  EXPECT_FALSE(Ask("AT+SIMFREQ?"));
  QV_SetProperty(4, 0, !bigEndian);
  EXPECT_NE(calibrate_crystal(kPort, &found), PC_ERR_SUCCESS);
  QV_SetProperty(4, 0, bigEndian);
  EXPECT_EQ(calibrate_crystal(kPort, &found), PC_ERR_SUCCESS);
}

TEST_P(GsmLoops, ExtendedRunGivesTheWholeSweep) {
  Begin(3);
  ASSERT_EQ(QV_SetPhoneClassmark_MT(kPort, 0), PC_ERR_SUCCESS);
  struct Sweep {
    std::uint16_t first, last, step;
    std::size_t blocks;
  };
  for (const Sweep& sweep : {Sweep{3900, 4400, 2, 2}, {3000, 4999, 1, 4}, {589, 7500, 1, 14}}) {
    SCOPED_TRACE(sweep.blocks);
    phone->ClearJournal();
    QV_EXTENDED_AFC run{};
    run.values[0] = sweep.first;
    run.values[1] = sweep.last;
    run.values[2] = sweep.step;
    run.values[3] = 62;
    ASSERT_EQ(QV_AfcStartEx(1, &run), PC_ERR_SUCCESS);
    const std::size_t steps = (sweep.last - sweep.first) / sweep.step + 1U;
    ASSERT_EQ(run.report_bytes, 4 * steps);
    // The start, the blocks after the first, the stop.
    EXPECT_EQ(phone->ReceivedCount(10, 1), sweep.blocks + 1);
    for (std::size_t step = 0; step < steps; ++step) {
      const auto dac = static_cast<std::uint16_t>(sweep.first + step * sweep.step);
      ASSERT_EQ(run.report[2 * step], dac);
      const double error = handset::FrequencyErrorHz(*truth, dac, handset::kRoomTemperature);
      ASSERT_NEAR(static_cast<std::int16_t>(run.report[2 * step + 1]), error, 4.0) << dac;
    }
  }
}

TEST_P(GsmLoops, ReceiverLoopFindsGainAndLossOfEachBand) {
  Begin(4);
  for (const auto& [row, band] : Bands()) {
    SCOPED_TRACE(row->name);
    BAND_CALIBRATION found{};
    ASSERT_EQ(calibrate_receiver(kPort, row, &found), PC_ERR_SUCCESS);
    EXPECT_NEAR(found.gain_step_db, band->gainStepDb, 0.001);
    const double loss = -handset::ReceivedDbm(*band, handset::MiddleOfGroup(*band, 2), 0);
    EXPECT_NEAR(found.gain_at_zero_db, band->gainOffsetDb - loss, 0.2);
    for (int group = 0; group < CHANNEL_GROUPS; ++group) {
      const auto channel = handset::MiddleOfGroup(*band, static_cast<std::size_t>(group));
      EXPECT_EQ(channel, group_channel(row, group));
      EXPECT_NEAR(static_cast<std::int16_t>(found.compensation[group]),
                  -4 * handset::ReceivedDbm(*band, channel, 0), 2.0);
    }
  }
}

TEST_P(GsmLoops, TransmitterLoopFindsTheStepFactors) {
  Begin(5);
  // One of the lower and one of the higher bands.
  for (const std::size_t at : {0U, 2U}) {
    const auto [row, band] = Bands()[at];
    SCOPED_TRACE(row->name);
    BAND_CALIBRATION found{};
    ASSERT_EQ(calibrate_transmitter(kPort, row, &found), PC_ERR_SUCCESS);
    for (std::size_t i = 0; i < STEP_FACTORS; ++i) {
      const double factor =
          handset::TrueFactor(*band, handset::MiddleOfGroup(*band, i / POWER_LEVELS),
                              handset::TargetPowerDbm(*band, i % POWER_LEVELS));
      EXPECT_LT(std::fabs(20 * std::log10(found.step_factors[i] / factor)), 0.1) << i;
    }
    // In RAM they act at once, in their band, and drift with the temperature.
    ASSERT_EQ(QV_WriteData_Ram_APC_RF_ramppwr_step_factor_MT(kPort, row->band, found.step_factors),
              PC_ERR_SUCCESS);
    QV_AFC_PARAMETERS afc{
        {4096, group_channel(row, 4), static_cast<std::uint16_t>(row->first_level + 7), 0}};
    ASSERT_EQ(QV_AfcStart_MT(kPort, 1, &afc), PC_ERR_SUCCESS);
    EXPECT_NEAR(Power(), level_power_dbm(row, 7), 0.15);
    ASSERT_TRUE(Ask("AT+SIMTEMP=650"));
    EXPECT_NEAR(Power(), level_power_dbm(row, 7) + 40 * band->transmitDbPerDegree, 0.15);
    ASSERT_TRUE(Ask("AT+SIMTEMP=250"));
  }
}

TEST_P(GsmLoops, PowerStatesRampsAndAmplifierAreTaken) {
  Begin(6);
  struct State {
    std::int32_t (*set)(std::int32_t);
    const char* power;
  };
  for (const State& state : {State{QV_EnterMaxTxPowerStatus_MT, "highest transmit"},
                             {QV_EnterMaxRxPowerStatus_MT, "highest receive"},
                             {QV_LeaveMaxTxPowerStatus_MT, "normal"},
                             {QV_EnterMaxTxPowerStatus_MT, "highest transmit"},
                             {QV_LeaveMaxRxPowerStatus_MT, "normal"}}) {
    ASSERT_EQ(state.set(kPort), PC_ERR_SUCCESS);
    // Nothing answers: another exchange shows that it has been heard.
    ASSERT_TRUE(Ask("AT"));
    EXPECT_EQ(phone->Status("radio.power"), state.power);
  }
  const std::uint16_t ramp[16] = {1, 2, 3};
  const QV_POWER_STEP amplifier{0, 1, 2, 3};
  EXPECT_EQ(QV_RampSetting_MT(kPort, 1, ramp, ramp, 3), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_PASetting_MT(kPort, &amplifier), PC_ERR_SUCCESS);
}

}  // namespace
}  // namespace merovane::test
