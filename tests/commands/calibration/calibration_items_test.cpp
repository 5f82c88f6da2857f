// One export of each kind of calibration item: all others differ from them in the numbers of their
// declaration only, which the stations' tests try on a handset that knows the items.
#include <algorithm>
#include <array>
#include <vector>

#include "commands/calibration/calibration_fixture.h"
#include "declared/calibration_data.h"

namespace merovane::test {
namespace {

using CalibrationItems = CalibrationFixture;

TEST_F(CalibrationItems, TravelWithTheirHeaderInTheHandsetsByteOrder) {
  InBothByteOrders([&] {
    std::uint32_t word = 0;
    ExpectRead(Header({1, 0, 1, 1, 4}), ReadAnswer().U32(0x01020304).Raw("EE EE"));
    EXPECT_EQ(ReadData_Flash_ADC_Adc1(phone, &word), Result::Success);
    EXPECT_EQ(word, 0x01020304U);
    ExpectLogged("ReadData_Flash_ADC_Adc1:");
    EXPECT_EQ(OperationOf(Result::Success), 87U);

    // Records no id, so that the one before stands.
    ExpectWrite(Header({1, 0, 1, 200, 4}).U32(0x0A0B0C0D));
    EXPECT_EQ(WriteData_Flash_ADC(phone, 200, 0x0A0B0C0D), Result::Success);
    ExpectLogged("WriteData_Flash_ADC:");
    EXPECT_EQ(OperationOf(Result::Success), 87U);

    std::array<std::uint16_t, 20> table{};
    table.front() = 0x0102;
    ExpectWrite(Header({1, 3, 8, 100, 40, 0x0102}).Zeros(38));
    EXPECT_EQ(SetRampTable_Flash(phone, 3, 5, table.data()), Result::Success);
    ExpectLogged("SetRampTable_Flash:");
    EXPECT_EQ(OperationOf(Result::Success), 142U);

    std::uint16_t value = 0;
    ExpectRead(Header({0, 1, 10, 9, 2}), ReadAnswer().U16(0x0708));
    EXPECT_EQ(ReadRampTableConstDown_Ram(phone, 1, 9, &value), Result::Success);
    EXPECT_EQ(value, 0x0708);
    EXPECT_EQ(OperationOf(Result::Success), 153U);

    std::array<std::uint16_t, 7> counted{};
    ExpectRead(Header({0, 1, 18, 0, 14}), ReadAnswer().U16(1).U16(2).Zeros(8).U16(7));
    EXPECT_EQ(ReadData_Ram_AGC_RX_compensate_value(phone, 1, counted.data(), 7), Result::Success);
    EXPECT_THAT(counted, ElementsAre(1, 2, 0, 0, 0, 0, 7));
    EXPECT_EQ(OperationOf(Result::Success), 127U);
    static_cast<void>(Log());
  });
}

TEST_F(CalibrationItems, AreFilledAsFarAsTheAnswerGoesAndNoFurther) {
  constexpr std::size_t kBytes = 34;
  for (const std::size_t answered : {kBytes - 1, kBytes, kBytes + 1, std::size_t{1}}) {
    GuardedBuffer<std::uint8_t> read(kBytes);
    handset.ExpectAnyPayload(32, 1).Answer(32, 1, Bytes(6 + answered, 0x11));
    EXPECT_EQ(ReadData_Ram_AFC_afc_value_arr(phone, reinterpret_cast<std::uint16_t*>(read.Data())),
              Result::Success);
    EXPECT_EQ(read[std::min(answered, kBytes) - 1], 0x11);
    EXPECT_TRUE(read.UntouchedFrom(std::min(answered, kBytes)));
  }
  GuardedBuffer<std::uint16_t> untouched(1);
  handset.ExpectAnyPayload(32, 1).Answer(32, 1, Bytes(6));
  EXPECT_EQ(ReadData_Ram_AFC_CDAC(phone, untouched.Data()), Result::WrongDataLength);
  handset.ExpectAnyPayload(32, 1).Refuse();
  EXPECT_EQ(ReadData_Ram_AFC_CDAC(phone, untouched.Data()), Result::Refused);
  EXPECT_TRUE(untouched.Untouched());
}

TEST_F(CalibrationItems, RefuseWhatIsNoArgumentOfTheirs) {
  std::vector<std::uint16_t> data(32758, 0x7E);
  std::uint16_t* const null = nullptr;
  ExpectRefused(107, CALL(ReadData_Ram_AFC_CDAC(phone, null)));
  ExpectRefused(125, CALL(ReadData_Ram_AGC_max_rf_gain_index(phone, 2, data.data())),
                CALL(ReadData_Ram_AGC_max_rf_gain_index(phone, 5, data.data())),
                CALL(ReadData_Ram_AGC_max_rf_gain_index(phone, 0x10000, data.data())),
                CALL(ReadData_Ram_AGC_max_rf_gain_index(phone, 0, null)));
  for (const std::uint32_t count : {0U, 32759U, 0x8000U, 0x80000001U, UINT32_MAX}) {
    ExpectRefused(134, CALL(WriteData_Flash_AGC_RX_compensate_value(phone, 0, data.data(), count)));
  }
  handset.ExpectAnyPayload(32, 0).Answer(32, 0);
  EXPECT_EQ(WriteData_Flash_AGC_RX_compensate_value(phone, 0, data.data(), 32758), Result::Success);
  EXPECT_EQ(handset.Heard().back().payload.size(), 10U + 2 * data.size());

  // Table 3277 would begin after what the offset word can say.
  ExpectRefused(149, CALL(ReadRampTable_Ram(phone, 0, 3277, data.data())));
  ExpectRead(Header({0, 0, 8, 65520, 40}), ReadAnswer().Zeros(40));
  EXPECT_EQ(ReadRampTable_Ram(phone, 0, 3276, data.data()), Result::Success);
}

TEST_F(CalibrationItems, OfCompensationGoEitherWayWithAnyBand) {
  std::array<std::uint16_t, 9> values{1, 2, 3, 4, 5, 6, 7, 8, 0x7E7D};
  ExpectWrite(Header({1, 2, 50, 0, 18, 1, 2, 3, 4, 5, 6, 7, 8, 0x7E7D}));
  EXPECT_EQ(RW_TEMPERATURE_EDGE_TX_COMPENSATE(phone, 0, 1, 2, values.data()), Result::Success);
  ExpectRead(Header({0, 0xFFFF, 50, 0, 18}), ReadAnswer().U16(0x1234));
  EXPECT_EQ(RW_TEMPERATURE_EDGE_TX_COMPENSATE(phone, 9, 0, 0xFFFF, values.data()), Result::Success);
  EXPECT_EQ(values[0], 0x1234);
  EXPECT_EQ(values[1], 2);
}

TEST_F(CalibrationItems, KeepImeisPackedInEitherByteOrder) {
  InBothByteOrders([&] {
    ExpectWrite(Header({1, 0, 35, 0, 8}).Raw("4A 09 51 24 30 32 57 81"));
    EXPECT_EQ(WriteData_Flash_SecIMEI(phone, "490154203237518 and more"), Result::Success);
    GuardedBuffer<char> text(16);
    ExpectRead(Header({1, 0, 30, 0, 8}), ReadAnswer().Raw("4A 09 51 24 30 32 57 81"));
    EXPECT_EQ(ReadData_Flash_IMEI(phone, text.Data()), Result::Success);
    EXPECT_STREQ(text.Data(), "490154203237518");
  });
  const std::uint32_t before = clock.NowMs();
  handset.ExpectAnyPayload(32, 0).Silent();
  EXPECT_EQ(WriteData_Flash_IMEI(phone, "490154203237518"), Result::NoAnswer);
  EXPECT_EQ(clock.NowMs() - before, 3000U);
}

TEST_F(CalibrationItems, ShowDamagedImeisWithinTheCallersText) {
  GuardedBuffer<char> text(16);
  // An erased flash: 15 nibbles of 15 would be 30 decimal digits.
  ExpectRead(Header({1, 0, 30, 0, 8}), ReadAnswer().Raw("FF FF FF FF FF FF FF FF"));
  EXPECT_EQ(ReadData_Flash_IMEI(phone, text.Data()), Result::Success);
  EXPECT_STREQ(text.Data(), "151515151515151");
  ExpectRead(Header({1, 0, 30, 0, 8}), ReadAnswer().Raw("4A 09 51 24"));
  EXPECT_EQ(ReadData_Flash_IMEI(phone, text.Data()), Result::Success);
  EXPECT_STREQ(text.Data(), "490154200000000");
}

TEST_F(CalibrationItems, RefuseTextsThatAreNoImei) {
  for (const char* text : {"", "49015420323751", "49015420323751x", "4901542 3237518",
                           static_cast<const char*>(nullptr)}) {
    ExpectRefused(76, CALL(WriteData_Flash_IMEI(phone, text)));
  }
  ExpectRefused(230, CALL(ReadData_Flash_SecIMEI(phone, nullptr)));
}

TEST_F(CalibrationItems, AreSavedWithinTheCallersTime) {
  for (const auto& [timeoutMs, expected] :
       {std::pair{20'000U, Result::Success}, {10'000U, Result::NoAnswer}}) {
    handset.Expect(32, 0, Header({1, 0, 32, 0, 0})).After(19'000).Answer(32, 0);
    EXPECT_EQ(SaveToFlash(phone, timeoutMs), expected);
    ExpectLogged("SaveToFlash:", expected);
  }
}

}  // namespace
}  // namespace merovane::test
