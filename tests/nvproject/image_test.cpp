// The NV image, its file, and blocks of its data.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Bytes = std::vector<std::uint8_t>;

constexpr ImageContext kBig{ByteOrder::Big(), 0x01020304};
constexpr ImageContext kLittle{ByteOrder::Little(), 0x01020304};

// The image, without its time stamp.
Bytes Records(CFileParser& parser, const ImageContext& context = kBig) {
  Bytes image;
  EXPECT_EQ(Generate(parser, image, context), Result::Success);
  return {image.begin() + 4, image.end()};
}

Bytes Records(const std::vector<TestItem>& items, const ImageContext& context = kBig) {
  return Records(*Load({items}), context);
}

TEST(Image, HoldsTimeStampHeaderAndValueInEitherOrder) {
  const auto parser =
      Load({{{.name = "a", .type = kLong, .length = 4, .content = "0x1234", .id = 5}}});
  Bytes image;
  ASSERT_EQ(Generate(*parser, image, kBig), Result::Success);
  EXPECT_THAT(image, ElementsAre(1, 2, 3, 4, 0, 5, 0, 4, 0, 0, 0x12, 0x34));
  // All of the caller's buffer is cleared.
  image.resize(kImageCapacity);
  Bytes buffer(kImageCapacity, 0xEE);
  std::uint32_t length = 0;
  GenerateNvBianryDataBlockInMemory(parser.get(), kBig, buffer.data(), &length);
  EXPECT_EQ(buffer, image);
  ASSERT_EQ(Generate(*parser, image, kLittle), Result::Success);
  EXPECT_THAT(image, ElementsAre(4, 3, 2, 1, 5, 0, 4, 0, 0x34, 0x12, 0, 0));
}

TEST(Image, PadsRecordsAndLeavesRoomForStrings) {
  EXPECT_THAT(Records({{.name = "a", .type = kChar, .length = 1, .content = "-2", .id = 0x10001},
                       {.name = "t", .type = kString, .length = 3, .content = "abc", .id = 2},
                       {.name = "b", .type = kShort, .length = 2, .content = "0X1fffe", .id = 3}}),
              ElementsAre(0, 1, 0, 1, 0xFE, 0, 0, 0,  //
                          0, 0, 0, 0, 0, 0, 0, 0,     //
                          0, 3, 0, 2, 0xFF, 0xFE, 0, 0));
}

TEST(Image, ItemOfNoLengthIsOverwritten) {
  EXPECT_THAT(Records({{.name = "a", .type = kChar, .length = 0, .content = "7", .id = 1},
                       {.name = "b", .type = kShort, .length = 2, .content = "8", .id = 2}}),
              ElementsAre(0, 2, 0, 2, 0, 8, 0, 0));
  // At the end its header is past the image.
  EXPECT_THAT(Records({{.name = "a", .type = kStruct, .id = 1}}), IsEmpty());
}

TEST(Image, PlacesMembersAndElements) {
  const std::vector<TestItem> items = {
      {.name = "s", .type = kStruct, .id = 9},
      {.name = "a", .type = kChar, .parent = 0, .content = "1"},
      {.name = "l", .type = kArray, .parent = 0, .size = 2},
      {.name = "l[0]", .type = kShort, .parent = 2, .content = "2"},
      {.name = "l[1]", .type = kShort, .parent = 2, .content = "0x0103"},
      {.name = "t", .type = kString, .parent = 0, .content = "text"},
      {.name = "b", .type = kLong, .parent = 0, .content = "4294967295"}};
  EXPECT_THAT(Records(items),
              ElementsAre(0, 9, 0, 12, 1, 0, 0, 2, 1, 3, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF));
  EXPECT_THAT(Records(items, kLittle),
              ElementsAre(9, 0, 12, 0, 1, 0, 2, 0, 3, 1, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF));
}

TEST(Image, ConvertsContents) {
  const std::map<std::string, std::uint32_t> values = {{"10", 10},
                                                       {"0x10", 16},
                                                       {"10X", 16},
                                                       {"", 0},
                                                       {"none", 0},
                                                       {"x10", 0},
                                                       {"-3", 0xFFFFFFFD},
                                                       {"+7", 7},
                                                       {"12e", 12},
                                                       {"-0x2", 0xFFFFFFFE},
                                                       {"0xABCDEFabZ", 0xABCDEFAB},
                                                       {"4294967298", 2}};
  for (const auto& [content, value] : values) {
    Bytes stored(4);
    ByteOrder::Big().PutU32(stored, 0, value);
    const Bytes records = Records({{.name = "a", .type = kLong, .length = 4, .content = content}});
    EXPECT_EQ(Bytes(records.begin() + 4, records.end()), stored) << content;
  }
}

// `count` shorts in an array: 8 bytes and two for each.
std::vector<TestItem> ArrayOf(std::uint32_t count) {
  std::vector<TestItem> items = {{.name = "a", .type = kArray, .size = count}};
  for (std::uint32_t i = 0; i < count; ++i) {
    items.push_back({.name = "a[]", .type = kShort, .parent = 0, .length = 2, .content = "1"});
  }
  return items;
}

TEST(Image, MayFillItsCapacityAndNotPassIt) {
  EXPECT_EQ(Records(ArrayOf(32764)).size(), 65532U);
  Bytes image;
  EXPECT_EQ(Generate(*Load({ArrayOf(32765)}), image), Result::BufferTooSmall);
}

class ImageFile : public ::testing::Test {
 protected:
  std::unique_ptr<CFileParser> Open(
      const std::string& target,
      const std::vector<TestItem>& items = {
          {.name = "a", .type = kShort, .length = 2, .content = "258", .id = 1}}) {
    directory.Write("p", "TARGET = " + target + "\nMODULE = m\n");
    directory.Write("m", ModuleFile(items));
    auto parser = std::make_unique<CFileParser>();
    return parser->LoadProject((directory / "p").string()) ? std::move(parser) : nullptr;
  }

  test::TempDirectory directory;
  CaughtMessages messages;
};

TEST_F(ImageFile, IsWrittenToTheTarget) {
  const auto parser = Open("nv.bin");
  EXPECT_EQ(SaveToBinaryFile(parser.get(), kLittle), Result::Success);
  EXPECT_EQ(test::FileText(directory / "nv.bin"), std::string("\4\3\2\1\1\0\2\0\2\1\0\0", 12));
  EXPECT_THAT(messages.Texts(), IsEmpty());
}

TEST_F(ImageFile, FailuresAreShownOnly) {
  EXPECT_EQ(SaveToBinaryFile(Open("").get(), kBig), Result::Success);
  const auto parser = Open("none/nv.bin");
  EXPECT_EQ(SaveToBinaryFile(parser.get(), kBig), Result::Success);
  EXPECT_THAT(messages.Texts(),
              ElementsAre("Error: ", "Error: Can't open file " + parser->Project().target + "!"));
}

TEST_F(ImageFile, TooLargeAnImageLeavesTheOldFile) {
  directory.Write("nv.bin", "old");
  EXPECT_EQ(SaveToBinaryFile(Open("nv.bin", ArrayOf(32765)).get(), kBig), Result::BufferTooSmall);
  EXPECT_EQ(test::FileText(directory / "nv.bin"), "old");
}

TEST_F(ImageFile, AlternativeBasePutsDspCodeFirst) {
  const auto parser = Open("nv.bin");
  EXPECT_EQ(parser->SaveImage(kBig, (directory / "none").string()), Result::Success);
  EXPECT_THAT(messages.Texts(),
              ElementsAre("Error: Can't open DSP Code file, Please check the file is exist!"));
  EXPECT_FALSE(std::filesystem::exists(directory / "nv.bin"));

  directory.Write("dsp", "ABCDE");
  EXPECT_EQ(parser->SaveImage(kBig, (directory / "dsp").string()), Result::Success);
  const std::string image = test::FileText(directory / "nv.bin");
  ASSERT_EQ(image.size(), 49168U);
  EXPECT_EQ(image.substr(0, 16), std::string("\1\2\3\4\0\4\xC0\0BADC\0E\0\0", 16));
  EXPECT_EQ(image.substr(49160), std::string("\0\1\0\2\1\2\0\0", 8));
}

TEST(ConvertBlock, ReversesValuesOfTheItemsInPlace) {
  const auto parser = Load({{{.name = "s", .type = kStruct},
                             {.name = "a", .type = kLong, .parent = 0},
                             {.name = "b", .type = kShort, .parent = 0},
                             {.name = "c", .type = kChar, .parent = 0},
                             {.name = "e", .type = kLong, .parent = 0}}});
  const auto converted = [&](const char* path, Bytes data) {
    EXPECT_EQ(ConvertDataByDataType(parser.get(), path, data.data(),
                                    static_cast<std::uint32_t>(data.size())),
              Result::Success);
    return data;
  };
  EXPECT_THAT(converted("s.a", {1, 2, 3, 4, 5, 6, 7}), ElementsAre(4, 3, 2, 1, 6, 5, 7));
  // "e" is at 8, after a gap, so that it does not follow "c" at 6.
  EXPECT_THAT(converted("s.c", {7, 8, 9, 10, 11}), ElementsAre(7, 8, 9, 10, 11));
  EXPECT_THAT(converted("s.e", {1, 2, 3, 4, 5}), ElementsAre(4, 3, 2, 1, 5));
  // A value that is not there whole stays as it is.
  EXPECT_THAT(converted("s.a", {1, 2, 3, 4, 5}), ElementsAre(4, 3, 2, 1, 5));
  EXPECT_THAT(converted("s.A", {1, 2, 3, 4}), ElementsAre(1, 2, 3, 4));
  // A structure takes a byte; here the next offset is 5, since its alignment is 4.
  EXPECT_THAT(converted("s", {1, 2, 3, 4, 5}), ElementsAre(1, 2, 3, 4, 5));
}

}  // namespace
}  // namespace merovane::nvproject::testing
