#include "commands/calibration/calibration_items.h"

#include <cstring>

#include "calibration/calibration_fixture.h"

namespace merovane::test {
namespace {

struct CalibrationItems : CalibrationFixture {};

struct Sample {
  const CalibrationItem& item;
  Storage storage;
  bool writes;
  ItemSelection selection;
  std::array<unsigned, 5> header;
  std::uint32_t operation;
  const char* logName;
};

// One of each kind, written out by hand.
const Sample kSamples[] = {
    {items::ADC_Adc1, Storage::Flash, false, {}, {1, 0, 1, 1, 4}, 87, "ReadData_Flash_ADC_Adc1:"},
    {items::ADC_Battery0,
     Storage::Ram,
     true,
     {},
     {0, 0, 1, 2, 4},
     78,
     "WriteData_Ram_ADC_Battery0:"},
    {items::ADC_Reserved7,
     Storage::Flash,
     true,
     {},
     {1, 0, 1, 11, 4},
     243,
     "WriteData_Flash_ADC_Reserved7:"},
    {items::AFC_afc_center,
     Storage::Flash,
     false,
     {},
     {1, 0, 2, 0, 2},
     89,
     "ReadData_Flash_AFC_afc_center:"},
    {items::AFC_slope_length,
     Storage::Ram,
     false,
     {},
     {0, 0, 5, 0, 2},
     107,
     "ReadData_Ram_AFC_slope_length:"},
    {items::AFC_CDAC, Storage::Ram, false, {}, {0, 0, 6, 0, 2}, 107, "ReadData_Ram_AFC_CDAC:"},
    {items::AFC_slope_value_arr,
     Storage::Ram,
     true,
     {},
     {0, 0, 4, 0, 34},
     119,
     "WriteData_Ram_AFC_slope_value_arr:"},
    {items::APC_RF_ramppwr_step_factor,
     Storage::Flash,
     true,
     {.band = 4},
     {1, 4, 21, 0, 160},
     124,
     "WriteData_Flash_APC_RF_ramppwr_step_factor:"},
    {items::APC_RF_ramppwr_step_factor_8Psk,
     Storage::Ram,
     true,
     {.band = 3},
     {0, 3, 36, 0, 2},
     245,
     "WriteData_Ram_APC_RF_ramppwr_step_factor_8Psk:"},
    {items::AGC_RX_compensate_value,
     Storage::Ram,
     false,
     {.band = 1, .count = 7},
     {0, 1, 18, 0, 14},
     127,
     "ReadData_Ram_AGC_RX_compensate_value:"},
    {items::AGC_agc_ctrl_word,
     Storage::Flash,
     false,
     {.band = 0},
     {1, 0, 23, 0, 182},
     135,
     "ReadData_Flash_AGC_agc_ctrl_word:"},
    {items::RampTable,
     Storage::Flash,
     true,
     {.band = 3, .index = 5},
     {1, 3, 8, 100, 40},
     142,
     "SetRampTable_Flash:"},
    {items::RampTableConstDown,
     Storage::Ram,
     false,
     {.band = 1, .index = 9},
     {0, 1, 10, 9, 2},
     153,
     "ReadRampTableConstDown_Ram:"},
    {items::RampTableAllConstUp,
     Storage::Flash,
     false,
     {.band = 4},
     {1, 4, 9, 0, 32},
     157,
     "ReadRampTableAllConstUp_Flash:"},
    {items::RampUpParamNum,
     Storage::Ram,
     true,
     {.band = 0},
     {0, 0, 11, 0, 2},
     156,
     "SetRampUpParamNum_Ram:"},
    {items::Duration_8PSK,
     Storage::Ram,
     true,
     {.band = 1, .index = 0x123},
     {0, 1, 39, 0x123, 2},
     251,
     "WriteData_Ram_Duration_8PSK:"},
    {items::TxGain_8PSK,
     Storage::Flash,
     false,
     {.band = 4, .index = 2},
     {1, 4, 37, 2, 2},
     256,
     "ReadData_Flash_TxGain_8PSK:"},
    {items::GetRfScheme, Storage::Ram, false, {}, {0, 0, 33, 0, 12}, 170, "GetRfScheme:"},
};

std::vector<std::uint8_t> HostData(std::size_t bytes) {
  std::vector<std::uint8_t> data(bytes);
  for (std::size_t at = 0; at < bytes; ++at) data[at] = static_cast<std::uint8_t>(3 * at + 1);
  return data;
}

Fields OnTheWire(Fields fields, const std::vector<std::uint8_t>& hostData, Element element) {
  const std::size_t width = element == Element::U32 ? 4 : 2;
  for (std::size_t at = 0; at < hostData.size(); at += width) {
    std::uint32_t value = 0;
    std::memcpy(&value, &hostData[at], width);
    if (element == Element::U32) fields.U32(value);
    if (element == Element::U16) fields.U16(value);
  }
  return fields;
}

TEST_F(CalibrationItems, TravelWithTheirHeaderInTheHandsetsByteOrder) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.logName);
    InBothByteOrders([&] {
      const auto data = HostData(sample.header[4]);
      Result result{};
      if (sample.writes) {
        ExpectWrite(OnTheWire(Header(sample.header), data, sample.item.element));
        const auto given = data;
        result = WriteItem(phone, sample.item, sample.storage, sample.selection, data.data());
        EXPECT_EQ(data, given) << "the caller's data was converted in place";
      } else {
        GuardedBuffer<std::uint8_t> read(data.size());
        ExpectRead(sample.header)
            .Answer(32, 1, OnTheWire(ReadAnswer(), data, sample.item.element).Raw("EE EE EE EE"));
        result = ReadItem(phone, sample.item, sample.storage, sample.selection, read.Data());
        EXPECT_EQ(read.Hex(data.size()), ToHex(data));
      }
      EXPECT_EQ(result, Result::Success);
      EXPECT_EQ(OperationOf(result), sample.operation);
      EXPECT_THAT(LogText(),
                  ElementsAre(sample.logName, "Clear Port Buffer", ResultLine(Result::Success)));
    });
  }
}

ItemSelection SelectionFor(const CalibrationItem& item) {
  return {.band = item.band == ItemBand::NoBand ? 0U : 3U, .index = 1, .count = 5};
}

std::size_t BytesOf(const CalibrationItem& item) { return item.bytes ? item.bytes : 10; }

bool IsReadAsElements(const CalibrationItem& item) {
  return item.argument != ItemArgument::Imei && item.argument != ItemArgument::Commit;
}

TEST_F(CalibrationItems, AreFilledAsFarAsTheAnswerGoesAndNoFurther) {
  for (const CalibrationItem* item : kCalibrationItems) {
    if (!IsReadAsElements(*item)) continue;
    SCOPED_TRACE(item->name);
    const std::size_t bytes = BytesOf(*item);
    const std::size_t width = item->element == Element::U32 ? 4 : 2;
    for (const std::size_t answered : {bytes - 1, bytes, bytes + 1, std::size_t{1}}) {
      GuardedBuffer<std::uint8_t> read(bytes);
      handset.ExpectAnyPayload(32, 1).Answer(
          32, 1, Joined(Hex("00 00 00 00 00 00"), Bytes(answered, 0x11)));
      EXPECT_EQ(ReadItem(phone, *item, Storage::Flash, SelectionFor(*item), read.Data()),
                Result::Success);
      EXPECT_TRUE(read.UntouchedFrom(std::min(answered, bytes)));
      EXPECT_EQ(read.Hex(std::min(answered, bytes) / width * width).find("A5"), std::string::npos);
    }
    GuardedBuffer<std::uint8_t> untouched(bytes);
    handset.ExpectAnyPayload(32, 1).Answer(32, 1, "00 00 00 00 00 00");
    EXPECT_EQ(ReadItem(phone, *item, Storage::Flash, SelectionFor(*item), untouched.Data()),
              Result::WrongDataLength);
    handset.ExpectAnyPayload(32, 1).Refuse();
    EXPECT_EQ(ReadItem(phone, *item, Storage::Flash, SelectionFor(*item), untouched.Data()),
              Result::Refused);
    EXPECT_TRUE(untouched.Untouched());
  }
}

TEST_F(CalibrationItems, RefuseWhatTheirRowRulesOut) {
  for (const CalibrationItem* item : kCalibrationItems) {
    if (!IsReadAsElements(*item)) continue;
    SCOPED_TRACE(item->name);
    GuardedBuffer<std::uint8_t> data(BytesOf(*item));
    for (const std::uint32_t band : {2U, 5U, 0x10000U}) {
      ItemSelection selection = SelectionFor(*item);
      selection.band = band;
      if (item->band != ItemBand::PerBand) continue;
      EXPECT_EQ(ReadItem(phone, *item, Storage::Ram, selection, data.Data()), Result::InvalidParam);
      EXPECT_EQ(WriteItem(phone, *item, Storage::Ram, selection, data.Data()),
                Result::InvalidParam);
    }
    EXPECT_EQ(ReadItem(phone, *item, Storage::Ram, SelectionFor(*item), nullptr),
              Result::InvalidParam);
    EXPECT_EQ(WriteItem(phone, *item, Storage::Ram, SelectionFor(*item), nullptr),
              Result::InvalidParam);
  }
  EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(CalibrationItems, RefuseCountsAndIndicesThatDoNotFitARequest) {
  GuardedBuffer<std::uint8_t> data(40);
  const auto& counted = items::AGC_RX_compensate_value;
  for (const std::uint32_t count : {0U, 32759U, 0x8000U, 0x80000001U, UINT32_MAX}) {
    ExpectRefused(ReadItem(phone, counted, Storage::Ram, {.band = 0, .count = count}, data.Data()),
                  127);
    ExpectRefused(
        WriteItem(phone, counted, Storage::Flash, {.band = 0, .count = count}, data.Data()), 134);
  }
  const std::vector<std::uint8_t> most(std::size_t{2} * 32758, 0x7E);
  handset.ExpectAnyPayload(32, 0).Answer(32, 0);
  EXPECT_EQ(WriteItem(phone, counted, Storage::Ram, {.band = 0, .count = 32758}, most.data()),
            Result::Success);
  EXPECT_EQ(handset.Heard().back().payload.size(), 10U + most.size());

  static_cast<void>(Log());

  // Table 3277 would begin behind what the offset word can say.
  ExpectRefused(
      ReadItem(phone, items::RampTable, Storage::Ram, {.band = 0, .index = 3277}, data.Data()),
      149);
  ExpectRead({0, 0, 8, 65520, 40}).Answer(32, 1, Bytes(46));
  EXPECT_EQ(
      ReadItem(phone, items::RampTable, Storage::Ram, {.band = 0, .index = 3276}, data.Data()),
      Result::Success);
}

TEST_F(CalibrationItems, OfTheAdcTakeTheLowByteOfAnOffset) {
  const std::uint32_t value = 0x01020304;
  ExpectWrite(Header({1, 0, 1, 0x34, 4}).Raw("01 02 03 04"));
  EXPECT_EQ(WriteItem(phone, items::ADC, Storage::Flash, {.index = 0x1234}, &value),
            Result::Success);
}

TEST_F(CalibrationItems, OfCompensationGoEitherWayWithAnyBand) {
  std::array<std::uint16_t, 9> values{1, 2, 3, 4, 5, 6, 7, 8, 0x7E7D};
  const auto& item = items::RW_TEMPERATURE_EDGE_TX_COMPENSATE;
  ExpectWrite(Header({1, 2, 50, 0, 18}).Raw("0001 0002 0003 0004 0005 0006 0007 0008 7E7D"));
  EXPECT_EQ(TransferItem(phone, item, 0, 1, 2, values.data()), Result::Success);
  ExpectRead({0, 0xFFFF, 50, 0, 18}).Answer(32, 1, ReadAnswer().U16(0x1234));
  EXPECT_EQ(TransferItem(phone, item, 9, 0, 0xFFFF, values.data()), Result::Success);
  EXPECT_EQ(values[0], 0x1234);
  EXPECT_EQ(values[1], 2);
  EXPECT_THAT(LogText(), ElementsAre("RW_TEMPERATURE_EDGE_TX_COMPENSATE:", "Clear Port Buffer",
                                     ResultLine(Result::Success),
                                     "RW_TEMPERATURE_EDGE_TX_COMPENSATE:", "Clear Port Buffer",
                                     ResultLine(Result::Success)));
}

TEST_F(CalibrationItems, KeepImeisPackedInEitherByteOrder) {
  InBothByteOrders([&] {
    ExpectWrite(Header({1, 0, 35, 0, 8}).Raw("4A 09 51 24 30 32 57 81"));
    EXPECT_EQ(WriteImeiItem(phone, items::SecIMEI, Storage::Flash, "490154203237518 and more"),
              Result::Success);
    GuardedBuffer<char> text(16);
    ExpectRead({1, 0, 30, 0, 8}).Answer(32, 1, ReadAnswer().Raw("4A 09 51 24 30 32 57 81"));
    EXPECT_EQ(ReadImeiItem(phone, items::IMEI, Storage::Flash, text.Data()), Result::Success);
    EXPECT_STREQ(text.Data(), "490154203237518");
  });
  const std::uint32_t before = clock.NowMs();
  handset.ExpectAnyPayload(32, 0).Silent();
  EXPECT_EQ(WriteImeiItem(phone, items::IMEI, Storage::Flash, "490154203237518"), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 3000U);
}

TEST_F(CalibrationItems, ShowDamagedImeisWithinTheCallersText) {
  GuardedBuffer<char> text(16);
  // An erased flash: 15 nibbles of 15 are 30 decimal digits.
  ExpectRead({1, 0, 30, 0, 8}).Answer(32, 1, ReadAnswer().Raw("FF FF FF FF FF FF FF FF"));
  EXPECT_EQ(ReadImeiItem(phone, items::IMEI, Storage::Flash, text.Data()), Result::Success);
  EXPECT_STREQ(text.Data(), "151515151515151");
  ExpectRead({1, 0, 30, 0, 8}).Answer(32, 1, ReadAnswer().Raw("4A 09 51 24"));
  EXPECT_EQ(ReadImeiItem(phone, items::IMEI, Storage::Flash, text.Data()), Result::Success);
  EXPECT_STREQ(text.Data(), "490154200000000");
}

TEST_F(CalibrationItems, RefuseTextsThatAreNoImei) {
  for (const char* text : {"", "49015420323751", "49015420323751x", "4901542 3237518"}) {
    ExpectRefused(WriteImeiItem(phone, items::IMEI, Storage::Flash, text), 76);
  }
  ExpectRefused(WriteImeiItem(phone, items::IMEI, Storage::Flash, nullptr), 76);
  ExpectRefused(ReadImeiItem(phone, items::SecIMEI, Storage::Flash, nullptr), 230);
}

TEST_F(CalibrationItems, AreSavedWithinTheCallersTime) {
  handset.Expect(32, 0, Header({1, 0, 32, 0, 0})).After(19'000).Answer(32, 0);
  EXPECT_EQ(CommitItem(phone, items::SaveToFlash, Storage::Flash, 20'000), Result::Success);
  EXPECT_THAT(LogText(),
              ElementsAre("SaveToFlash:", "Clear Port Buffer", ResultLine(Result::Success)));
  EXPECT_EQ(OperationOf(Result::Success), 169U);
  handset.Expect(32, 0, Header({1, 0, 32, 0, 0})).After(19'000).Answer(32, 0);
  EXPECT_EQ(CommitItem(phone, items::SaveToFlash, Storage::Flash, 10'000), Result::NoAnswer);
}

}  // namespace
}  // namespace merovane::test
