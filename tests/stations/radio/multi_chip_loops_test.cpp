// Multi-chip handsets: the same radio by single steps.
#include <algorithm>
#include <string>

#include "parts/radio/constants.h"
#include "stations/radio/calibrated_station.h"

extern "C" {
#include "gsm_calibration.h"
}

namespace merovane::test {
namespace {

constexpr std::uint16_t kRssiItem = 25;
constexpr std::uint16_t kChannel = 62;
constexpr std::int32_t kInvalidRssi = 32;
constexpr std::int32_t kNonSignalFailed = 33;

class MultiChipLoops : public CalibratedStation {
 protected:
  void SetUp() override {
    ASSERT_EQ(QV_SetPhoneClassmark_MChip_MT(kPort, 0), PC_ERR_SUCCESS);
    ASSERT_EQ(QV_Active_MChip_MT(kPort, 1), PC_ERR_SUCCESS);
  }
  static bool Ask(const char* command) { return instrument_ask(kPort, command, nullptr, 0) == 0; }
  // In hundredths.
  static double Measure(const char* command) {
    long number = 0;
    EXPECT_EQ(instrument_ask(kPort, command, &number, 1), PC_ERR_SUCCESS) << command;
    return static_cast<double>(number) / 100;
  }
  // How often the receiver was read since the journal was cleared.
  std::ptrdiff_t RssiReads() const {
    return std::ranges::count_if(phone->Received(), [](const handset::Frame& frame) {
      return frame.type == 32 && frame.subtype == 1 &&
             handset::Read16(frame.payload, 4, handset::ByteOrder::Little) == kRssiItem;
    });
  }

  // The handset's own constants. Bands: 0 GSM900, 1 DCS1800, 2 PCS1900, 3 GSM850, as it counts
  // them.
  const handset::RadioConstants truth{kSeed};
  const handset::BandConstants& gsm900 = *truth.Band(0);
};

TEST_F(MultiChipLoops, ReceiverIsReadUntilItHasSettled) {
  QV_AGC_PARAMETERS agc{0, {kChannel, 160, 260, 0}, 0};
  QV_AGC_RESULT measured{};
  EXPECT_EQ(QV_AgcStart_MChip_MT(kPort, 1, &agc, &measured), kInvalidRssi) << "nothing to receive";
  EXPECT_EQ(RssiReads(), 6);

  ASSERT_TRUE(Ask("AT+SIMGEN=-7000"));
  for (const std::uint16_t gainWord : {std::uint16_t{80}, std::uint16_t{320}}) {
    phone->ClearJournal();
    agc.words[1] = gainWord;
    ASSERT_EQ(QV_AgcStart_MChip_MT(kPort, 1, &agc, &measured), PC_ERR_SUCCESS);
    EXPECT_EQ(RssiReads(), 3) << "two zeros first";
    const double received = handset::ReceivedDbm(gsm900, kChannel, -70);
    EXPECT_NEAR(measured.rssi, handset::Rssi(received, handset::GainDb(gsm900, gainWord)), 12);
    EXPECT_NEAR(measured.rx_level, handset::ReceiveLevel(received, 0), 2);
  }
  EXPECT_EQ(phone->Status("radio.receiver"), "on");
  EXPECT_EQ(QV_AgcStart_MChip_MT(kPort, 0, &agc, nullptr), PC_ERR_SUCCESS);
  EXPECT_EQ(phone->Status("radio.receiver"), "off");
}

TEST_F(MultiChipLoops, CrystalFollowsTheCentreOrBothTrims) {
  struct Trim {
    std::uint32_t mode;
    QV_AFC_PARAMETERS afc;
    double steps;
  };
  for (const Trim& trim : {Trim{0, {{4300, kChannel, 5, 0}}, 4300},
                           {0, {{3900, kChannel, 5, 0}}, 3900},
                           {1, {{3, kChannel, 5, 4000}}, 4000 + 3 * 32},
                           {1, {{0xFFFE, kChannel, 5, 4000}}, 4000 - 2 * 32}}) {
    SCOPED_TRACE(trim.steps);
    ASSERT_EQ(QV_SetPhoneAfcMode_MT(kPort, trim.mode), PC_ERR_SUCCESS);
    ASSERT_EQ(QV_AfcStart_MChip_MT(kPort, 1, &trim.afc), PC_ERR_SUCCESS);
    EXPECT_NEAR(Measure("AT+SIMFREQ?"),
                handset::FrequencyErrorHz(truth, trim.steps, handset::kRoomTemperature), 4.0);
  }
  EXPECT_EQ(QV_AfcStart_MChip_MT(kPort, 0, nullptr), PC_ERR_SUCCESS);
  EXPECT_EQ(phone->Status("radio.transmitter"), "off");
}

TEST_F(MultiChipLoops, FactorOfEveryGroupAndLevelHasItsPlace) {
  struct Place {
    std::uint32_t band;
    std::uint32_t group;
    std::uint16_t level;
    std::uint16_t factor;
  };
  // The first levels, with their bases, and the last ones.
  for (const Place& place :
       {Place{0, 0, 5, 2000}, {0, 4, 20, 300}, {1, 2, 0, 1500}, {4, 3, 9, 777}}) {
    SCOPED_TRACE(place.factor);
    const handset::BandConstants& band = *truth.Band(place.band);
    const std::uint16_t channel = handset::MiddleOfGroup(band, place.group);
    const QV_POWER_STEP step{place.band, place.level, place.factor, place.group};
    ASSERT_EQ(QV_SetPhoneClassmark_MChip_MT(kPort, place.band), PC_ERR_SUCCESS);
    ASSERT_EQ(QV_TxOn_MChip_MT(kPort, 1, channel, place.level), PC_ERR_SUCCESS);
    // It acts while the handset transmits.
    ASSERT_EQ(QV_PwrStepFactorSet_MChip_MT(kPort, &step), PC_ERR_SUCCESS);
    EXPECT_NEAR(Measure("AT+SIMPOWER?"),
                handset::TransmitPowerDbm(band, channel, place.factor, handset::kRoomTemperature),
                0.06);
  }
  EXPECT_EQ(QV_TxOn_MChip_MT(kPort, 0, 0, 0), PC_ERR_SUCCESS);
  EXPECT_FALSE(Ask("AT+SIMPOWER?"));
}

TEST_F(MultiChipLoops, DirectCurrentAndNonSignallingMeasure) {
  std::uint16_t first = 0, second = 0;
  ASSERT_EQ(QV_CalDirectCurr_MT(kPort, &first, &second), PC_ERR_SUCCESS);
  EXPECT_NEAR(first, truth.directCurrent[0], 6);
  EXPECT_NEAR(second, truth.directCurrent[1], 6);
  EXPECT_EQ(phone->Status("radio.receiver"), "off");

  ASSERT_TRUE(Ask("AT+SIMGEN=-7000"));
  QV_AGC_PARAMETERS agc{0, {kChannel, 160, 260, 0}, 0};
  QV_AGC_RESULT measured{};
  ASSERT_EQ(QV_AgcStart_MChip_MT(kPort, 1, &agc, &measured), PC_ERR_SUCCESS);
  QV_NON_SIGNAL_COMMAND command{0, 6, 0, {1, 2, 3, 4}};
  QV_NON_SIGNAL_ANSWER answer{};
  ASSERT_EQ(QV_SendNonSignalCmd_MT(kPort, &command, &answer, 1000), PC_ERR_SUCCESS);
  EXPECT_EQ(answer.status, 0);
  EXPECT_NEAR(answer.values[0], measured.rssi, 16);
  EXPECT_NEAR(answer.values[1], measured.rx_level, 2);
  command.command_id = 9;
  EXPECT_EQ(QV_SendNonSignalCmd_MT(kPort, &command, nullptr, 1000), kNonSignalFailed);
}

}  // namespace
}  // namespace merovane::test
