// Every calibration item through its exports: RAM and flash apart, saved, and there after a new
// start of the handset.
#include <cstring>
#include <functional>
#include <type_traits>
#include <vector>

#include "stations/radio/calibrated_station.h"

namespace merovane::test {
namespace {

constexpr std::uint32_t kBand = 3;
constexpr std::uint16_t kIndex = 2;
constexpr std::uint32_t kSaveLimitMs = 20000;

using KeptItems = CalibratedStation;
INSTANTIATE_TEST_SUITE_P(ByteOrders, KeptItems, ::testing::Values(true, false));

// --- one shape for all exports: the item's 16-bit elements

using Words = std::vector<std::uint16_t>;
using Function = std::function<std::int32_t(Words&)>;

// What an export takes for the data: a pointer to it, or a value.
template <typename Data>
Data As(Words& words) {
  if constexpr (std::is_pointer_v<Data>) {
    return reinterpret_cast<Data>(words.data());
  } else {
    Data value{};
    std::memcpy(&value, words.data(), sizeof value);
    return value;
  }
}

template <typename Data>
Function Call(std::int32_t (*call)(std::int32_t, Data)) {
  return [call](Words& words) { return call(kPort, As<Data>(words)); };
}
template <typename Data>
Function Call(std::int32_t (*call)(std::int32_t, std::uint32_t, Data)) {
  return [call](Words& words) { return call(kPort, kBand, As<Data>(words)); };
}
template <typename Data>
Function Call(std::int32_t (*call)(std::int32_t, std::uint32_t, std::uint16_t, Data)) {
  return [call](Words& words) { return call(kPort, kBand, kIndex, As<Data>(words)); };
}
template <typename Data>
Function Call(std::int32_t (*call)(std::int32_t, std::uint32_t, Data*, std::uint32_t)) {
  return [call](Words& words) {
    return call(kPort, kBand, words.data(), static_cast<std::uint32_t>(words.size()));
  };
}
Function CallDefault(std::int32_t (*call)(std::uint32_t, std::uint32_t, std::uint16_t,
                                          std::uint16_t*),
                     std::uint32_t read, std::uint32_t flash) {
  return [=](Words& words) { return call(read, flash, kBand, words.data()); };
}

enum Storage { kRam, kFlash };

struct Item {
  const char* name;
  std::size_t words;
  Function write[2], read[2];  // by storage
};

Item Made(const char* name, std::size_t words, Function writeRam, Function writeFlash,
          Function readRam, Function readFlash) {
  return {name, words, {writeRam, writeFlash}, {readRam, readFlash}};
}

#define DATA(name, words)                                                                      \
  Made(#name, words, Call(QV_WriteData_Ram_##name##_MT), Call(QV_WriteData_Flash_##name##_MT), \
       Call(QV_ReadData_Ram_##name##_MT), Call(QV_ReadData_Flash_##name##_MT))
#define FLASH_DATA(name, words)                                              \
  Made(#name, words, nullptr, Call(QV_WriteData_Flash_##name##_MT), nullptr, \
       Call(QV_ReadData_Flash_##name##_MT))
#define TABLE(name, words)                                                       \
  Made(#name, words, Call(QV_Set##name##_Ram_MT), Call(QV_Set##name##_Flash_MT), \
       Call(QV_Read##name##_Ram_MT), Call(QV_Read##name##_Flash_MT))
#define EITHER(name, words)                                                            \
  Made(#name, words, CallDefault(QV_RW_##name, 0, 0), CallDefault(QV_RW_##name, 0, 1), \
       CallDefault(QV_RW_##name, 1, 0), CallDefault(QV_RW_##name, 1, 1))

template <typename... Each>
std::vector<Item> Listed(Each... each) {
  return {each...};
}

const std::vector<Item>& Items() {
  static const std::vector<Item> items = Listed(
      FLASH_DATA(ADC_Adc0, 2), FLASH_DATA(ADC_Adc1, 2), FLASH_DATA(ADC_Reserved0, 2),
      FLASH_DATA(ADC_Reserved1, 2), FLASH_DATA(ADC_Reserved7, 2), DATA(ADC_Battery0, 2),
      DATA(ADC_Battery1, 2), DATA(AFC_afc_center, 1), DATA(AFC_afc_slope_hz_per_6bits, 1),
      DATA(AFC_slope_length, 1), DATA(AFC_CDAC, 1), DATA(AFC_CAFC, 1), DATA(AFC_afc_value_arr, 17),
      DATA(AFC_slope_value_arr, 17), DATA(AFC_slope_value_reciprocal_arr, 17),
      DATA(APC_RF_ramppwr_step_factor, 80), DATA(APC_RF_ramppwr_step_factor_8Psk, 1),
      DATA(AGC_max_rf_gain_index, 1), DATA(AGC_RX_compensate_value, 5), DATA(AGC_agc_ctrl_word, 91),
      TABLE(RampTable, 20), TABLE(RampTableConstUp, 1), TABLE(RampTableConstDown, 1),
      TABLE(RampUpParamNum, 1), DATA(Delta_Timing, 1), DATA(Duration, 1),
      DATA(Delta_Timing_8PSK, 1), DATA(Duration_8PSK, 1), EITHER(OSCI_TEMP_COM_IN_DAC, 5),
      EITHER(TEMPERATURE_GSM_TX_COMPENSATE, 9), EITHER(TEMPERATURE_EDGE_TX_COMPENSATE, 9),
      EITHER(TEMPERATURE_GSM_TXPOWER_COMPENSATE, 6), EITHER(TEMPERATURE_EDGE_TXPOWER_COMPENSATE, 6),
      EITHER(TX_COMPENSATE_BOUNDARY_ARFCN_INDEX, 4), EITHER(TEMPERATURE_RX_COMPENSATE_ADC, 4),
      EITHER(TEMPERATURE_RX_LEVEL_COMPENSATE, 5), EITHER(TEMPERATURE_TX_COMPENSATE_ADC, 4),
      EITHER(TEMPERATURE_TX_RAMPWR_STEP_FACTOR, 5), EITHER(RF_EDGE_DELTA_TIMING, 1),
      EITHER(RF_EDGE_POWER_ON_DURATION, 1));
  return items;
}

// Another one for every item, and bytes that a wrong order would exchange.
Words Pattern(std::size_t item, unsigned variant) {
  Words words(Items()[item].words);
  for (std::size_t i = 0; i < words.size(); ++i) {
    words[i] = static_cast<std::uint16_t>(std::size_t{0x0100} * (item + 1) +
                                          std::size_t{0x4000} * variant + i + 1);
  }
  return words;
}

void WriteAll(Storage storage, unsigned variant) {
  for (std::size_t item = 0; item < Items().size(); ++item) {
    const Function& write = Items()[item].write[storage];
    Words words = Pattern(item, variant);
    if (write) {
      EXPECT_EQ(write(words), PC_ERR_SUCCESS) << Items()[item].name;
    }
  }
}

void ExpectAll(Storage storage, unsigned variant, bool inRamToo = false) {
  for (std::size_t item = 0; item < Items().size(); ++item) {
    const auto& [name, count, write, read] = Items()[item];
    if (!read[storage] || (inRamToo && !read[kRam])) continue;
    Words words(count);
    EXPECT_EQ(read[storage](words), PC_ERR_SUCCESS) << name;
    EXPECT_EQ(words, Pattern(item, variant)) << name;
  }
}

TEST_P(KeptItems, RamAndFlashAreApartUntilRestartOrSave) {
  WriteAll(kRam, 1);
  WriteAll(kFlash, 2);
  ExpectAll(kRam, 1);
  ExpectAll(kFlash, 2);
  Restart();
  ExpectAll(kRam, 2);
  ExpectAll(kFlash, 2);
  WriteAll(kRam, 3);
  ASSERT_EQ(QV_SaveToFlash_MT(kPort, kSaveLimitMs), PC_ERR_SUCCESS);
  Restart();
  ExpectAll(kRam, 3);
  ExpectAll(kFlash, 3, true);
}

TEST_P(KeptItems, OtherFormsReachTheSamePlaces) {
  // All ramp constants at once, and a pair of multi-chip ramps, which begins with them.
  Words ramp(16), read(16), second(16);
  for (std::size_t i = 0; i < ramp.size(); ++i) ramp[i] = static_cast<std::uint16_t>(0x0A00 + i);
  std::uint16_t value = 0;
  ASSERT_EQ(QV_SetRampTableAllConstUp_Flash_MT(kPort, kBand, ramp.data()), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadRampTableConstUp_Flash_MT(kPort, kBand, 15, &value), PC_ERR_SUCCESS);
  EXPECT_EQ(value, ramp[15]);
  EXPECT_EQ(QV_ReadRamp_Flash_MChip_MT(kPort, 1, read.data(), second.data(), kBand),
            PC_ERR_SUCCESS);
  EXPECT_EQ(read, ramp);
  EXPECT_EQ(second, Words(16));
  ASSERT_EQ(QV_RampSetting_Ram_MChip_MT(kPort, 0, second.data(), ramp.data(), kBand),
            PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadRampTableConstDown_Ram_MT(kPort, kBand, 3, &value), PC_ERR_SUCCESS);
  EXPECT_EQ(value, ramp[3]);

  // A gain that only the multi-chip form writes.
  const QV_POWER_STEP gain{kBand, kIndex, 0x0BCD, 0};
  ASSERT_EQ(QV_Set_Ram_8PSK_PWR_TX_GAIN_MChip_MT(kPort, &gain), PC_ERR_SUCCESS);
  EXPECT_EQ(QV_ReadData_Ram_TxGain_8PSK_MT(kPort, kBand, kIndex, &value), PC_ERR_SUCCESS);
  EXPECT_EQ(value, 0x0BCD);
}

TEST_P(KeptItems, ImeisOutliveASaveAndAreTheHandsetsOwn) {
  char text[16] = {};
  ASSERT_EQ(QV_WriteData_Flash_IMEI_MT(kPort, "490154203237518"), PC_ERR_SUCCESS);
  ASSERT_EQ(QV_WriteData_Flash_SecIMEI_MT(kPort, "356938035643809"), PC_ERR_SUCCESS);
  // RAM holds none that could overwrite them.
  ASSERT_EQ(QV_SaveToFlash_MT(kPort, kSaveLimitMs), PC_ERR_SUCCESS);
  Restart();
  EXPECT_EQ(QV_ReadData_Flash_IMEI_MT(kPort, text), PC_ERR_SUCCESS);
  EXPECT_STREQ(text, "490154203237518");
  EXPECT_EQ(QV_ReadIMEI_ASCII_MT(kPort, text), PC_ERR_SUCCESS);
  EXPECT_STREQ(text, "490154203237518");
  EXPECT_EQ(QV_ReadData_Flash_SecIMEI_MT(kPort, text), PC_ERR_SUCCESS);
  EXPECT_STREQ(text, "356938035643809");
}

}  // namespace
}  // namespace merovane::test
