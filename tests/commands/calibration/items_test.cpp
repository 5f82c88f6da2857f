// Items of calibration data: what a short answer leaves, and IMEIs that are damaged.
#include <algorithm>

#include "commands/calibration/calibration_fixture.h"
#include "declared/calibration_data.h"

namespace merovane::test {
namespace {

using CalibrationItems = CalibrationFixture;

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
  EXPECT_TRUE(untouched.Untouched());
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

}  // namespace
}  // namespace merovane::test
