// The exported functions as a station calls them: that each passes its arguments on to the right
// item in the right place.
#define MEROVANE_BUILD

#include "api/library.h"
#include "api/phone_object.h"
#include "calibration/calibration_fixture.h"
#include "merovane/merovane.h"

namespace merovane::test {
namespace {

struct Exports : CalibrationFixture {
  void SetUp() override {
    auto object =
        std::make_shared<api::PhoneObject>(api::TheLibrary().settings, clock, handset.Library());
    ASSERT_EQ(object->link.Open(port, 115200), Result::Success);
    api::TheLibrary().registry.Enter(port, object);
    api::TheLibrary().registry.MakeDefault(port);
  }
  void TearDown() override { EXPECT_EQ(QV_EndPhoneTest(), 0); }

  void Write(const std::array<unsigned, 5>& header, const char* data) {
    ExpectWrite(Header(header).Raw(data));
  }
  void Read(const std::array<unsigned, 5>& header, const char* data) {
    ExpectRead(header).Answer(32, 1, ReadAnswer().Raw(data));
  }
};

TEST_F(Exports, WithoutABandTakeAValueOrAPointer) {
  std::uint32_t adc = 0;
  std::uint16_t afc = 0;
  Write({0, 0, 1, 3, 4}, "01 02 03 04");
  EXPECT_EQ(QV_WriteData_Ram_ADC_Battery1(0x01020304), 0);
  Read({1, 0, 1, 5, 4}, "01 02 03 04");
  EXPECT_EQ(QV_ReadData_Flash_ADC_Reserved1_MT(port, &adc), 0);
  EXPECT_EQ(adc, 0x01020304U);
  Write({1, 0, 1, 200, 4}, "00 00 00 09");
  EXPECT_EQ(QV_WriteData_Flash_ADC(200, 9), 0);
  Read({1, 0, 1, 11, 4}, "00 00 00 0A");
  EXPECT_EQ(QV_ReadData_Flash_ADC_MT(port, 11, &adc), 0);
  EXPECT_EQ(adc, 10U);
  Write({1, 0, 3, 0, 2}, "12 34");
  EXPECT_EQ(QV_WriteData_Flash_AFC_afc_slope_hz_per_6bits(0x1234), 0);
  Read({0, 0, 7, 0, 2}, "56 78");
  EXPECT_EQ(QV_ReadData_Ram_AFC_CAFC(&afc), 0);
  EXPECT_EQ(afc, 0x5678);
  EXPECT_EQ(QV_ReadData_Ram_AFC_CAFC(nullptr), 4);
}

TEST_F(Exports, OfABandPassItWithIndexAndCount) {
  std::array<std::uint16_t, 91> values{1, 2, 3};
  Write({0, 4, 24, 0, 2}, "00 07");
  EXPECT_EQ(QV_WriteData_Ram_AGC_max_rf_gain_index(4, 7), 0);
  Read({1, 3, 23, 0, 182}, "00 09");
  EXPECT_EQ(QV_ReadData_Flash_AGC_agc_ctrl_word_MT(port, 3, values.data()), 0);
  EXPECT_EQ(values[0], 9);
  Write({1, 1, 18, 0, 6}, "00 09 00 02 00 03");
  EXPECT_EQ(QV_WriteData_Flash_AGC_RX_compensate_value(1, values.data(), 3), 0);
  Read({1, 0, 8, 40, 40}, "00 0B");
  EXPECT_EQ(QV_ReadRampTable_Flash(0, 2, values.data()), 0);
  EXPECT_EQ(values[0], 11);
  Write({0, 0, 9, 15, 2}, "01 02");
  EXPECT_EQ(QV_SetRampTableConstUp_Ram_MT(port, 0, 15, 0x0102), 0);
  Write({1, 3, 11, 0, 2}, "00 10");
  EXPECT_EQ(QV_SetRampUpParamNum_Flash(3, 16), 0);
  Write({1, 4, 12, 3, 2}, "FF FE");
  EXPECT_EQ(QV_WriteData_Flash_Delta_Timing(4, 3, 0xFFFE), 0);
  Read({0, 0, 37, 7, 2}, "00 0C");
  EXPECT_EQ(QV_ReadData_Ram_TxGain_8PSK(0, 7, values.data()), 0);
  EXPECT_EQ(QV_WriteData_Flash_Delta_Timing(2, 3, 1), 4);
}

TEST_F(Exports, OfOtherShapesPassTheirArguments) {
  std::array<char, 16> text{};
  std::array<std::uint16_t, 16> values{};
  std::array<std::uint16_t, 16> others{};
  Read({1, 0, 35, 0, 8}, "4A 09 51 24 30 32 57 81");
  EXPECT_EQ(QV_ReadData_Flash_SecIMEI(text.data()), 0);
  Write({1, 0, 30, 0, 8}, "4A 09 51 24 30 32 57 81");
  EXPECT_EQ(QV_WriteData_Flash_IMEI_MT(port, text.data()), 0);
  Write({1, 0, 32, 0, 0}, "");
  EXPECT_EQ(QV_SaveToFlash(20000), 0);
  Read({0, 0, 33, 0, 12}, "00 01 00 02 00 03 00 04 00 05 00 06");
  EXPECT_EQ(QV_GetRfScheme(values.data()), 0);
  EXPECT_EQ(values[5], 6);
  Read({1, 3, 58, 0, 2}, "00 05");
  EXPECT_EQ(QV_RW_RF_EDGE_DELTA_TIMING(1, 1, 3, values.data()), 0);
  Read({0, 1, 8, 0, 32}, "00 01");
  Read({0, 1, 10, 0, 32}, "00 02");
  EXPECT_EQ(QV_ReadRamp_Ram_MChip(0, values.data(), others.data(), 1), 0);
  EXPECT_EQ(values[0], 1);
  EXPECT_EQ(others[0], 2);
  const QV_POWER_STEP step{1, 2, 3, 4};
  Write({0, 1, 37, 66, 2}, "00 03");
  EXPECT_EQ(QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip_MT(port, &step), 0);
}

TEST_F(Exports, ReachTheCommandsOfTheSameName) {
  EXPECT_EQ(QV_SetTxParam(1, 2, 3, 4), 0);
  EXPECT_EQ(QV_SetPhoneClassmark_MChip_MT(port, 4), 0);
  Write({0, 4, 28, 0, 20}, "0000 0000 00000001 0000 00 00 0002 0003 0004 0000");
  EXPECT_EQ(QV_TxOn_MChip(0, 0, 0), 0);
  ExpectMessage(Message(0xA103, 20).U32(3));
  EXPECT_EQ(QV_SetPhoneClassmark(3), 0);
  QV_TD_TX_START start{};
  ExpectMessage(Message(0xA129, 40).Zeros(24));
  EXPECT_EQ(QV_TdStartTx_MT(port, &start), 0);
}

}  // namespace
}  // namespace merovane::test
