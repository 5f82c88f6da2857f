#include "commands/calibration/calibration_items.h"

#include <algorithm>
#include <vector>

#include "commands/calibration/calibration_fixture.h"

namespace merovane::test {
namespace {

struct CalibrationItems : CalibrationFixture {
  // Reads and writes of every item whose data is an array of elements.
  template <typename Body>
  void ForEachItem(Body body) {
    for (const CalibrationItem* item : kCalibrationItems) {
      if (item->argument == ItemArgument::Imei || item->argument == ItemArgument::Commit) continue;
      SCOPED_TRACE(item->name);
      const std::size_t bytes = item->bytes ? item->bytes : 10;
      const std::uint32_t band = item->band == ItemBand::NoBand ? 0 : 3;
      body(*item, ItemSelection{.band = band, .index = 1, .count = 5}, bytes);
    }
  }
};

TEST_F(CalibrationItems, TravelWithTheirHeaderInTheHandsetsByteOrder) {
  using enum Storage;
  const auto travels = [&](const CalibrationItem& item, Storage storage, bool writes,
                           const ItemSelection& selection, const char* logName,
                           std::uint32_t operation, std::initializer_list<unsigned> header) {
    SCOPED_TRACE(logName);
    const unsigned bytes = *(header.end() - 1);
    const auto values = [&](Fields fields) {
      for (unsigned at = 0; at < bytes / 2; ++at) {
        if (item.element == Element::U16) fields.U16(0x0102 + at);
        if (item.element == Element::U32 && at % 2 == 0) fields.U32(0x01020304 + at);
      }
      return fields;
    };
    const Bytes callers = values(Fields(false)).Get();
    InBothByteOrders([&] {
      GuardedBuffer<std::uint8_t> data(bytes);
      Result result = Result::Success;
      if (writes) {
        std::ranges::copy(callers, data.Data());
        ExpectWrite(values(Header(header)));
        result = WriteItem(phone, item, storage, selection, data.Data());
      } else {
        ExpectRead(Header(header), values(ReadAnswer()).Raw("EE EE EE EE"));
        result = ReadItem(phone, item, storage, selection, data.Data());
      }
      EXPECT_EQ(data.Hex(bytes), ToHex(callers));
      EXPECT_EQ(result, Result::Success);
      ExpectLogged(logName);
      EXPECT_EQ(OperationOf(Result::Success), operation);
    });
  };
  // One of each kind.
  travels(items::ADC_Adc1, Flash, false, {}, "ReadData_Flash_ADC_Adc1:", 87, {1, 0, 1, 1, 4});
  // Records no id, so that the one before stands.
  travels(items::ADC, Flash, true, {.index = 0xF1C8}, "WriteData_Flash_ADC:", 87,
          {1, 0, 1, 200, 4});
  travels(items::AFC_slope_value_arr, Ram, true, {}, "WriteData_Ram_AFC_slope_value_arr:", 119,
          {0, 0, 4, 0, 34});
  travels(items::AGC_RX_compensate_value, Ram, false, {.band = 1, .count = 7},
          "ReadData_Ram_AGC_RX_compensate_value:", 127, {0, 1, 18, 0, 14});
  travels(items::RampTable, Flash, true, {.band = 3, .index = 5}, "SetRampTable_Flash:", 142,
          {1, 3, 8, 100, 40});
  travels(items::RampTableConstDown, Ram, false, {.band = 1, .index = 9},
          "ReadRampTableConstDown_Ram:", 153, {0, 1, 10, 9, 2});
  travels(items::GetRfScheme, Ram, false, {}, "GetRfScheme:", 170, {0, 0, 33, 0, 12});
}

TEST_F(CalibrationItems, AreFilledAsFarAsTheAnswerGoesAndNoFurther) {
  ForEachItem([&](const CalibrationItem& item, const ItemSelection& selection, std::size_t bytes) {
    for (const std::size_t answered : {bytes - 1, bytes, bytes + 1, std::size_t{1}}) {
      GuardedBuffer<std::uint8_t> read(bytes);
      handset.ExpectAnyPayload(32, 1).Answer(32, 1, Bytes(6 + answered, 0x11));
      EXPECT_EQ(ReadItem(phone, item, Storage::Flash, selection, read.Data()), Result::Success);
      EXPECT_EQ(read[std::min(answered, bytes) - 1], 0x11);
      EXPECT_TRUE(read.UntouchedFrom(std::min(answered, bytes)));
    }
    GuardedBuffer<std::uint8_t> untouched(bytes);
    handset.ExpectAnyPayload(32, 1).Answer(32, 1, Bytes(6));
    EXPECT_EQ(ReadItem(phone, item, Storage::Flash, selection, untouched.Data()),
              Result::WrongDataLength);
    handset.ExpectAnyPayload(32, 1).Refuse();
    EXPECT_EQ(ReadItem(phone, item, Storage::Flash, selection, untouched.Data()), Result::Refused);
    EXPECT_TRUE(untouched.Untouched());
  });
}

TEST_F(CalibrationItems, RefuseNullPointersAndOtherBands) {
  ForEachItem([&](const CalibrationItem& item, ItemSelection selection, std::size_t bytes) {
    GuardedBuffer<std::uint8_t> data(bytes);
    const auto both = [&](void* pointer) {
      EXPECT_EQ(ReadItem(phone, item, Storage::Ram, selection, pointer), Result::InvalidParam);
      EXPECT_EQ(WriteItem(phone, item, Storage::Ram, selection, pointer), Result::InvalidParam);
    };
    both(nullptr);
    if (item.band != ItemBand::PerBand) return;
    for (const std::uint32_t band : {2U, 5U, 0x10000U}) {
      selection.band = band;
      both(data.Data());
    }
  });
  EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(CalibrationItems, RefuseCountsAndIndicesThatDoNotFitARequest) {
  std::vector<std::uint8_t> data(std::size_t{2} * 32758, 0x7E);
  const auto read = [&](const CalibrationItem& item, const ItemSelection& selection) {
    return ReadItem(phone, item, Storage::Ram, selection, data.data());
  };
  const auto& counted = items::AGC_RX_compensate_value;
  for (const std::uint32_t count : {0U, 32759U, 0x8000U, 0x80000001U, UINT32_MAX}) {
    ExpectRefused(127, CALL(read(counted, {.count = count})));
    ExpectRefused(134,
                  CALL(WriteItem(phone, counted, Storage::Flash, {.count = count}, data.data())));
  }
  handset.ExpectAnyPayload(32, 0).Answer(32, 0);
  EXPECT_EQ(WriteItem(phone, counted, Storage::Ram, {.count = 32758}, data.data()),
            Result::Success);
  EXPECT_EQ(handset.Heard().back().payload.size(), 10U + data.size());

  // Table 3277 would begin behind what the offset word can say.
  ExpectRefused(149, CALL(read(items::RampTable, {.index = 3277})));
  ExpectRead(Header({0, 0, 8, 65520, 40}), ReadAnswer().Zeros(40));
  EXPECT_EQ(read(items::RampTable, {.index = 3276}), Result::Success);
}

TEST_F(CalibrationItems, OfCompensationGoEitherWayWithAnyBand) {
  std::array<std::uint16_t, 9> values{1, 2, 3, 4, 5, 6, 7, 8, 0x7E7D};
  const auto& item = items::RW_TEMPERATURE_EDGE_TX_COMPENSATE;
  ExpectWrite(Header({1, 2, 50, 0, 18, 1, 2, 3, 4, 5, 6, 7, 8, 0x7E7D}));
  EXPECT_EQ(TransferItem(phone, item, 0, 1, 2, values.data()), Result::Success);
  ExpectRead(Header({0, 0xFFFF, 50, 0, 18}), ReadAnswer().U16(0x1234));
  EXPECT_EQ(TransferItem(phone, item, 9, 0, 0xFFFF, values.data()), Result::Success);
  EXPECT_EQ(values[0], 0x1234);
  EXPECT_EQ(values[1], 2);
}

TEST_F(CalibrationItems, KeepImeisPackedInEitherByteOrder) {
  InBothByteOrders([&] {
    ExpectWrite(Header({1, 0, 35, 0, 8}).Raw("4A 09 51 24 30 32 57 81"));
    EXPECT_EQ(WriteImeiItem(phone, items::SecIMEI, Storage::Flash, "490154203237518 and more"),
              Result::Success);
    GuardedBuffer<char> text(16);
    ExpectRead(Header({1, 0, 30, 0, 8}), ReadAnswer().Raw("4A 09 51 24 30 32 57 81"));
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
  // An erased flash: 15 nibbles of 15 would be 30 decimal digits.
  ExpectRead(Header({1, 0, 30, 0, 8}), ReadAnswer().Raw("FF FF FF FF FF FF FF FF"));
  EXPECT_EQ(ReadImeiItem(phone, items::IMEI, Storage::Flash, text.Data()), Result::Success);
  EXPECT_STREQ(text.Data(), "151515151515151");
  ExpectRead(Header({1, 0, 30, 0, 8}), ReadAnswer().Raw("4A 09 51 24"));
  EXPECT_EQ(ReadImeiItem(phone, items::IMEI, Storage::Flash, text.Data()), Result::Success);
  EXPECT_STREQ(text.Data(), "490154200000000");
}

TEST_F(CalibrationItems, RefuseTextsThatAreNoImei) {
  for (const char* text : {"", "49015420323751", "49015420323751x", "4901542 3237518",
                           static_cast<const char*>(nullptr)}) {
    ExpectRefused(76, CALL(WriteImeiItem(phone, items::IMEI, Storage::Flash, text)));
  }
  ExpectRefused(230, CALL(ReadImeiItem(phone, items::SecIMEI, Storage::Flash, nullptr)));
}

TEST_F(CalibrationItems, AreSavedWithinTheCallersTime) {
  for (const auto& [timeoutMs, expected] :
       {std::pair{20'000U, Result::Success}, {10'000U, Result::NoAnswer}}) {
    handset.Expect(32, 0, Header({1, 0, 32, 0, 0})).After(19'000).Answer(32, 0);
    EXPECT_EQ(CommitItem(phone, items::SaveToFlash, Storage::Flash, timeoutMs), expected);
    ExpectLogged("SaveToFlash:", expected);
  }
}

}  // namespace
}  // namespace merovane::test
