// Values by path: one, arrays in both notations, and the checks of every command.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "nvproject/commands.h"
#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;

constexpr int kArray = 5;

std::vector<TestItem> ArrayItems(const std::vector<std::pair<std::string, std::string>>& elements) {
  std::vector<TestItem> items = {{.name = "a", .type = kArray}};
  for (const auto& [index, content] : elements) {
    items.push_back({.name = "a" + index, .type = 2, .parent = 0, .content = content});
  }
  return items;
}

TEST(ItemArrays, ReadInEitherNotationAndRepeatWhatIsMissing) {
  const auto parser = Load({ArrayItems(
      {{"[1]", "0x10"}, {"[0x3]", "-7"}, {"[4]", "0XFFFE"}, {"[0xa]", "12"}, {"[9]", "x"}})});
  std::array<std::int16_t, 12> values;
  for (const auto notation : {IndexNotation::Decimal, IndexNotation::Hexadecimal}) {
    parser->GetItemArray("A", values, notation, 3);
    EXPECT_THAT(values, ElementsAre(0, 16, 16, -7, -2, -2, -2, -2, -2, 0, 12, 12));
  }
}

TEST(ItemArrays, TheNotationDecidesWhereBothAreThere) {
  const auto parser = Load({ArrayItems({{"[0]", "1"}, {"[0x0]", "2"}})});
  std::array<std::int16_t, 1> value;
  parser->GetItemArray("a", value, IndexNotation::Decimal, 0);
  EXPECT_THAT(value, ElementsAre(1));
  parser->SetItemArray("a", value, IndexNotation::Hexadecimal, 0);
  EXPECT_EQ(Content(*parser, "a[0x0]"), "0X1");
  EXPECT_EQ(Content(*parser, "a[0]"), "1");
}

TEST(ItemArrays, WriteHexadecimalAndSkipWhatIsMissing) {
  const auto parser =
      Load({ArrayItems({{"[0]", ""}, {"[0x1]", ""}, {"[3]", ""}, {"[4]", ""}, {"[5]", ""}})});
  const std::array<std::int16_t, 6> values = {-2, 255, 7, 0, -32768, 0x1ab};
  parser->SetItemArray("a", values, IndexNotation::Hexadecimal, 0);
  EXPECT_EQ(Content(*parser, "a[0]"), "0XFFFE");
  EXPECT_EQ(Content(*parser, "a[0x1]"), "0XFF");
  EXPECT_EQ(Content(*parser, "a[3]"), "0X0");
  EXPECT_EQ(Content(*parser, "a[4]"), "0X8000");
  EXPECT_EQ(Content(*parser, "a[5]"), "0X1AB");
}

TEST(ItemArrays, AWriteThatTakesAnotherElementsPlaceIsSeenByTheNext) {
  // The first element is stored in the second one's place, which is then no longer there.
  std::vector<TestItem> items = ArrayItems({{"[0]", "1"}, {"[1]", "2"}, {"[2]", "3"}});
  items[1].index = 2;
  const auto parser = Load({items});
  const std::array<std::int16_t, 3> values = {16, 17, 18};
  parser->SetItemArray("a", values, IndexNotation::Decimal, 0);
  EXPECT_EQ(Content(*parser, "a[0]"), "1");
  EXPECT_EQ(Content(*parser, "a[1]"), "?");
  EXPECT_EQ(Content(*parser, "a[2]"), "0X12");
  EXPECT_EQ(parser->Items()[2].content, "0X10");
}

TEST(Commands, GetNvValueFillsTheCapacity) {
  const auto parser = Load({{{.name = "a", .content = "0x1234"}}});
  std::string text(300, '#');
  EXPECT_EQ(GetNvValue(parser.get(), 7, "A", text.data(), 4), Result::Success);
  EXPECT_EQ(text.substr(0, 5), "0x12#");
  EXPECT_EQ(GetNvValue(parser.get(), 0, "a", text.data(), 299), Result::Success);
  EXPECT_EQ(text, "0x1234" + std::string(293, '\0') + "#");
  EXPECT_EQ(GetNvValue(parser.get(), 0, "b", text.data(), 9), Result::PathNotFound);
  EXPECT_EQ(SetNvValue(parser.get(), 0, "b", "1"), Result::PathNotFound);
  EXPECT_EQ(SetNvValue(parser.get(), 5, "A", std::string(256, 'y').c_str()), Result::Success);
  EXPECT_EQ(Content(*parser, "a"), std::string(255, 'y'));
}

TEST(Commands, OpenReplacesAndAFailedOpenLeavesNone) {
  const TemporaryDirectory directory;
  WriteFile(directory.Path("p"), "MODULE = m\n");
  WriteFile(directory.Path("m"), "");
  std::unique_ptr<CFileParser> project;
  EXPECT_EQ(OpenPrjFile(project, directory.Path("p").c_str()), Result::Success);
  const CFileParser* const first = project.get();
  EXPECT_EQ(OpenPrjFile(project, nullptr), Result::InvalidParam);
  EXPECT_EQ(project.get(), first);
  EXPECT_EQ(OpenPrjFile(project, directory.Path("q").c_str()), Result::OpenNvProjectFailed);
  EXPECT_EQ(project, nullptr);
  EXPECT_EQ(ClosePrjFile(project), Result::Success);
}

// Every command, with one of its pointers null by turns, without and with a project.
TEST(Commands, CheckArgumentsAndProjectInTheirOrder) {
  const auto open = Load({{{.name = "a"}}});
  std::array<std::uint16_t, 100> u16{};
  std::array<std::uint32_t, 2> u32{};
  std::vector<char> bytes(kImageCapacity);
  std::uint16_t* const w = u16.data();
  std::uint32_t* const d = u32.data();
  char* const b = bytes.data();
  using Call = std::function<Result(CFileParser*)>;
  const ImageContext context;
  const std::vector<Call> missing = {
      [&](auto* p) { return GetNvValue(p, 0, nullptr, b, 1); },
      [&](auto* p) { return GetNvValue(p, 0, "a", nullptr, 1); },
      [&](auto* p) { return GetNvValue(p, 0, "a", b, 0); },
      [&](auto* p) { return SetNvValue(p, 0, nullptr, "1"); },
      [&](auto* p) { return SetNvValue(p, 0, "a", nullptr); },
      [&](auto* p) { return GenerateNvBinaryDataBlockInMemory(p, nullptr, d, context); },
      [&](auto* p) { return GenerateNvBinaryDataBlockInMemory(p, b, nullptr, context); },
      [&](auto* p) { return GetItemOffsetAndSize(p, nullptr, d); },
      [&](auto* p) { return GetItemOffsetAndSize(p, "a", nullptr); },
      [&](auto* p) { return GetNvValueAgc(p, nullptr, w, w, 0); },
      [&](auto* p) { return GetNvValueAgc(p, w, nullptr, w, 0); },
      [&](auto* p) { return GetNvValueAgc(p, w, w, nullptr, 0); },
      [&](auto* p) { return GetNvValueAgc(p, w, w, w, 4); },
      [&](auto* p) { return SetNvValueAgc(p, nullptr, 1, w, 0); },
      [&](auto* p) { return SetNvValueAgc(p, w, 1, nullptr, 0); },
      [&](auto* p) { return SetNvValueAgc(p, w, 1, w, 0xFFFFFFFF); },
      [&](auto* p) { return GetNvValueApc(p, nullptr, w, w, w, w, w, 0); },
      [&](auto* p) { return GetNvValueApc(p, w, w, w, w, w, nullptr, 0); },
      [&](auto* p) { return GetNvValueApc(p, w, w, w, w, w, w, 4); },
      [&](auto* p) { return SetNvValueApc(p, nullptr, 0); },
      [&](auto* p) { return SetNvValueApc(p, w, 4); },
      [&](auto* p) { return GetNvValueNvVersion(p, nullptr); },
      [&](auto* p) { return GetNvValueNvVersionTd(p, nullptr); },
      [&](auto* p) { return GetNvValueAdc1(p, nullptr, d); },
      [&](auto* p) { return SetNvValueAdc1(p, d, nullptr); },
      [&](auto* p) { return GetNvValueAdc2(p, nullptr); },
      [&](auto* p) { return SetNvValueAdc2(p, nullptr); },
      [&](auto* p) { return GetNvValueAfc1(p, w, nullptr); },
      [&](auto* p) { return GetNvValueAfc2(p, w, w, nullptr, w, w, w); },
      [&](auto* p) { return SetNvValueAfc2(p, 1, 2, 3, w, w, nullptr); }};
  for (std::size_t i = 0; i < missing.size(); ++i) {
    EXPECT_EQ(missing[i](nullptr), Result::InvalidParam) << i;
    EXPECT_EQ(missing[i](open.get()), Result::InvalidParam) << i;
  }

  const std::vector<Call> projectFirst = {
      [&](auto* p) { return ConvertDataByDataType(p, nullptr, b, 1); },
      [&](auto* p) { return ConvertDataByDataType(p, "a", nullptr, 1); },
      [&](auto* p) { return ConvertDataByDataType(p, "a", b, 0); },
      [&](auto* p) { return GetNvValueFactor(p, nullptr, 2); }};
  for (const Call& call : projectFirst) {
    EXPECT_EQ(call(nullptr), Result::NvProjectNotOpen);
    EXPECT_EQ(call(open.get()), Result::InvalidParam);
  }

  const std::vector<Call> complete = {
      [&](auto* p) { return GetNvValue(p, 0, "a", b, 1); },
      [&](auto* p) { return SetNvValue(p, 0, "a", "1"); },
      [&](auto* p) { return GenerateNvBinaryDataBlockInMemory(p, b, d, context); },
      [&](auto* p) { return GetItemOffsetAndSize(p, "a", d); },
      [&](auto* p) { return ConvertDataByDataType(p, "a", b, 1); },
      [&](auto* p) { return GetNvValueAgc(p, w, w, w, 3); },
      [&](auto* p) { return SetNvValueAgc(p, w, 1, w, 3); },
      [&](auto* p) { return GetNvValueApc(p, w, w, w, w, w, w, 3); },
      [&](auto* p) { return SetNvValueApc(p, w, 3); },
      [&](auto* p) { return GetNvValueFactor(p, w, 4); },
      [&](auto* p) { return GetNvValueNvVersion(p, w); },
      [&](auto* p) { return GetNvValueNvVersionTd(p, w); },
      [&](auto* p) { return GetNvValueAdc1(p, d, d); },
      [&](auto* p) { return SetNvValueAdc1(p, d, d); },
      [&](auto* p) { return GetNvValueAdc2(p, w); },
      [&](auto* p) { return SetNvValueAdc2(p, w); },
      [&](auto* p) { return GetNvValueAfc1(p, w, w); },
      [&](auto* p) { return SetNvValueAfc1(p, 1, 2); },
      [&](auto* p) { return GetNvValueAfc2(p, w, w, w, w, w, w); },
      [&](auto* p) { return SetNvValueAfc2(p, 1, 2, 3, w, w, w); }};
  for (std::size_t i = 0; i < complete.size(); ++i) {
    EXPECT_EQ(complete[i](nullptr), Result::NvProjectNotOpen) << i;
    // What the project does not hold is not an error.
    EXPECT_EQ(complete[i](open.get()), Result::Success) << i;
  }
  EXPECT_EQ(SaveToBinaryFile(nullptr, context), Result::NvProjectNotOpen);
}

}  // namespace
}  // namespace merovane::nvproject::testing
