// Every calibration item that is declared, through its exports: RAM and flash apart, saved, and
// there after a new start of the handset.
#include <dlfcn.h>

#include <algorithm>
#include <string>
#include <vector>

#include "declared/calibration_items.h"
#include "stations/radio/calibrated_station.h"

namespace merovane::test {
namespace {

using commands::CalibrationItem;
using commands::ItemData;
using commands::Storage;
using Words = std::vector<std::uint16_t>;

constexpr std::uint16_t kBand = 3;
constexpr std::uint16_t kIndex = 2;
constexpr std::uint16_t kCountedWords = 5;
constexpr std::uint32_t kSaveLimitMs = 20000;

using KeptItems = CalibratedStation;

template <typename... Arguments>
std::int32_t Call(const std::string& name, Arguments... arguments) {
  auto* const function = reinterpret_cast<std::int32_t (*)(Arguments...)>(
      ::dlsym(RTLD_DEFAULT, ("QV_" + name).c_str()));
  EXPECT_NE(function, nullptr) << name;
  return function == nullptr ? -1 : function(arguments...);
}

// With what tells the place of the data, as far as the item needs it.
template <typename... Data>
std::int32_t CallForPlace(const CalibrationItem& item, const std::string& name, Data... data) {
  if (item.perIndex > 0) return Call(name, kPort, std::uint32_t{kBand}, kIndex, data...);
  if (item.perBand) return Call(name, kPort, std::uint32_t{kBand}, data...);
  return Call(name, kPort, data...);
}

template <typename Element>
std::int32_t TransferElements(const CalibrationItem& item, const std::string& name, bool writes,
                              Words& words) {
  auto* const elements = reinterpret_cast<Element*>(words.data());
  if (item.data == ItemData::Value && writes) return CallForPlace(item, name, *elements);
  if (item.data == ItemData::Counted) {
    return CallForPlace(item, name, elements, static_cast<std::uint32_t>(words.size()));
  }
  return CallForPlace(item, name, elements);
}

std::int32_t Transfer(const CalibrationItem& item, Storage storage, bool writes, Words& words) {
  const std::string name(item.Export(storage, writes).name);
  if (item.either) {
    return Call(name, std::uint32_t{!writes}, std::uint32_t{storage == Storage::Flash}, kBand,
                words.data());
  }
  return item.element == commands::Element::U32
             ? TransferElements<std::uint32_t>(item, name + "_MT", writes, words)
             : TransferElements<std::uint16_t>(item, name + "_MT", writes, words);
}

// Those that keep what is written. Of several that begin at the same place, the first.
std::vector<const CalibrationItem*> Items() {
  std::vector<const CalibrationItem*> items;
  for (const CalibrationItem* item : commands::kCalibrationItems) {
    const bool words = item->data != ItemData::Imei && item->data != ItemData::Commit;
    const bool taken = std::ranges::any_of(items, [&](const CalibrationItem* other) {
      return other->item == item->item && other->offset == item->offset;
    });
    if (words && !taken && !item->Export(Storage::Flash, true).name.empty()) items.push_back(item);
  }
  EXPECT_GE(items.size(), 40U);
  return items;
}

// Another one for every item, and bytes that a wrong order would exchange.
Words Pattern(const CalibrationItem& item, std::size_t number, unsigned variant) {
  Words words(item.data == ItemData::Counted ? kCountedWords : item.bytes / 2U);
  for (std::size_t i = 0; i < words.size(); ++i) {
    words[i] =
        static_cast<std::uint16_t>(0x0100 * (number + 1) + std::size_t{0x4000} * variant + i + 1);
  }
  return words;
}

void WriteAll(Storage storage, unsigned variant) {
  std::size_t number = 0;
  for (const CalibrationItem* item : Items()) {
    Words words = Pattern(*item, number++, variant);
    if (item->Export(storage, true).name.empty()) continue;
    EXPECT_EQ(Transfer(*item, storage, true, words), PC_ERR_SUCCESS) << item->name;
  }
}

void ExpectAll(Storage storage, unsigned variant, bool inRamToo = false) {
  std::size_t number = 0;
  for (const CalibrationItem* item : Items()) {
    const Words expected = Pattern(*item, number++, variant);
    if (item->Export(storage, false).name.empty()) continue;
    if (inRamToo && item->Export(Storage::Ram, true).name.empty()) continue;
    Words words(expected.size());
    EXPECT_EQ(Transfer(*item, storage, false, words), PC_ERR_SUCCESS) << item->name;
    EXPECT_EQ(words, expected) << item->name;
  }
}

TEST_F(KeptItems, RamAndFlashAreApartUntilRestartOrSave) {
  WriteAll(Storage::Ram, 1);
  WriteAll(Storage::Flash, 2);
  ExpectAll(Storage::Ram, 1);
  ExpectAll(Storage::Flash, 2);
  Restart();
  ExpectAll(Storage::Ram, 2);
  ExpectAll(Storage::Flash, 2);
  WriteAll(Storage::Ram, 3);
  ASSERT_EQ(QV_SaveToFlash_MT(kPort, kSaveLimitMs), PC_ERR_SUCCESS);
  Restart();
  ExpectAll(Storage::Ram, 3);
  ExpectAll(Storage::Flash, 3, true);
}

TEST_F(KeptItems, OtherFormsReachTheSamePlaces) {
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

TEST_F(KeptItems, ImeisOutliveASaveAndAreTheHandsetsOwn) {
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
