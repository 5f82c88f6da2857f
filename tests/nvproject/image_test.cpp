// The NV image, its file, and blocks of its data.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "nvproject/commands.h"
#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

constexpr int kChar = 1, kShort = 2, kLong = 4, kArray = 5, kString = 6, kStruct = 7;

using Bytes = std::vector<std::uint8_t>;

constexpr ImageContext kBig{ByteOrder::Big, 0x01020304};
constexpr ImageContext kLittle{ByteOrder::Little, 0x01020304};

// The image, without its time stamp.
Bytes Records(CFileParser& parser, const ImageContext& context = kBig) {
  Bytes buffer(kImageCapacity, 0xEE);
  std::uint32_t length = 0;
  if (!Succeeded(GenerateNvBinaryDataBlockInMemory(&parser, buffer.data(), &length, context))) {
    return {};
  }
  return {buffer.begin() + 4, buffer.begin() + length};
}

Bytes Records(const std::vector<TestItem>& items, const ImageContext& context = kBig) {
  return Records(*Load({items}), context);
}

TEST(Image, HoldsTimeStampHeaderAndValueInEitherOrder) {
  const auto parser =
      Load({{{.name = "a", .type = kLong, .length = 4, .content = "0x1234", .id = 5}}});
  Bytes buffer(kImageCapacity, 0xEE);
  std::uint32_t length = 0;
  ASSERT_EQ(GenerateNvBinaryDataBlockInMemory(parser.get(), buffer.data(), &length, kBig),
            Result::Success);
  ASSERT_EQ(length, 12U);
  EXPECT_THAT(Bytes(buffer.begin(), buffer.begin() + 12),
              ElementsAre(1, 2, 3, 4, 0, 5, 0, 4, 0, 0, 0x12, 0x34));
  // All of the caller's buffer is cleared.
  EXPECT_EQ(std::count(buffer.begin() + 12, buffer.end(), 0), 65524);
  ASSERT_EQ(GenerateNvBinaryDataBlockInMemory(parser.get(), buffer.data(), &length, kLittle),
            Result::Success);
  EXPECT_THAT(Bytes(buffer.begin(), buffer.begin() + 12),
              ElementsAre(4, 3, 2, 1, 5, 0, 4, 0, 0x34, 0x12, 0, 0));
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
  // At the end its header is behind the image.
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
  const std::vector<std::pair<std::string, std::uint32_t>> cases = {{"10", 10},
                                                                    {"0x10", 16},
                                                                    {"10X", 16},
                                                                    {"", 0},
                                                                    {"none", 0},
                                                                    {"x10", 0},
                                                                    {"-3", 0xFFFFFFFD},
                                                                    {"+7", 7},
                                                                    {"0xABCDEFabZ", 0xABCDEFAB},
                                                                    {"12e", 12},
                                                                    {"-0x2", 0xFFFFFFFE},
                                                                    {"4294967298", 2}};
  for (const auto& [content, value] : cases) {
    const Bytes records = Records({{.name = "a", .type = kLong, .length = 4, .content = content}});
    ASSERT_EQ(records.size(), 8U);
    const std::uint32_t stored =
        (std::uint32_t{records[4]} << 24) | (records[5] << 16) | (records[6] << 8) | records[7];
    EXPECT_EQ(stored, value) << content;
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
  const auto tooLarge = Load({ArrayOf(32765)});
  Bytes buffer(kImageCapacity, 0xEE);
  std::uint32_t length = 77;
  EXPECT_EQ(GenerateNvBinaryDataBlockInMemory(tooLarge.get(), buffer.data(), &length, kBig),
            Result::BufferTooSmall);
  EXPECT_EQ(std::count(buffer.begin(), buffer.end(), 0xEE), 65536);
  EXPECT_EQ(length, 77U);
}

class ImageFile : public ::testing::Test {
 protected:
  std::unique_ptr<CFileParser> Open(const std::string& target) {
    WriteFile(directory.Path("p"), "TARGET = " + target + "\nMODULE = m\n");
    WriteFile(directory.Path("m"),
              ModuleFile({{.name = "a", .type = kShort, .length = 2, .content = "258", .id = 1}}));
    auto parser = std::make_unique<CFileParser>();
    return parser->LoadProject(directory.Path("p")) ? std::move(parser) : nullptr;
  }

  TemporaryDirectory directory;
  CaughtMessages messages;
};

TEST_F(ImageFile, IsWrittenToTheTarget) {
  const auto parser = Open("nv.bin");
  EXPECT_EQ(SaveToBinaryFile(parser.get(), kLittle), Result::Success);
  EXPECT_EQ(ReadFile(directory.Path("nv.bin")), std::string("\4\3\2\1\1\0\2\0\2\1\0\0", 12));
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
  WriteFile(directory.Path("nv.bin"), "old");
  Open("nv.bin");
  WriteFile(directory.Path("m"), ModuleFile(ArrayOf(32765)));
  CFileParser parser;
  ASSERT_TRUE(parser.LoadProject(directory.Path("p")));
  EXPECT_EQ(SaveToBinaryFile(&parser, kBig), Result::BufferTooSmall);
  EXPECT_EQ(ReadFile(directory.Path("nv.bin")), "old");
}

TEST_F(ImageFile, AlternativeBasePutsDspCodeFirst) {
  const auto parser = Open("nv.bin");
  parser->SetAlternativeBase(true);
  EXPECT_EQ(parser->SaveImage(kBig), Result::Success);
  EXPECT_THAT(messages.Texts(),
              ElementsAre("Error: Can't open DSP Code file, Please check the file is exist!"));
  EXPECT_FALSE(std::filesystem::exists(directory.Path("nv.bin")));

  WriteFile(directory.Path("dsp"), "ABCDE");
  EXPECT_EQ(parser->SaveImage(kBig, directory.Path("dsp")), Result::Success);
  const std::string image = ReadFile(directory.Path("nv.bin"));
  ASSERT_EQ(image.size(), 49168U);
  EXPECT_EQ(image.substr(0, 16), std::string("\1\2\3\4\0\4\xC0\0BADC\0E\0\0", 16));
  EXPECT_EQ(image.substr(49160), std::string("\0\1\0\2\1\2\0\0", 8));
  // In memory nothing comes before the records.
  EXPECT_THAT(Records(*parser), ElementsAre(0, 1, 0, 2, 1, 2, 0, 0));
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
  // "e" is at 8, behind a gap, so that it does not follow "c" at 6.
  EXPECT_THAT(converted("s.c", {7, 8, 9, 10, 11}), ElementsAre(7, 8, 9, 10, 11));
  EXPECT_THAT(converted("s.e", {1, 2, 3, 4, 5}), ElementsAre(4, 3, 2, 1, 5));
  // A value that is not there whole stays as it is.
  EXPECT_THAT(converted("s.a", {1, 2, 3, 4, 5}), ElementsAre(4, 3, 2, 1, 5));
  EXPECT_THAT(converted("s.A", {1, 2, 3, 4}), ElementsAre(1, 2, 3, 4));
  // A structure takes a byte; here the next offset is 5, since its alignment is 4.
  EXPECT_THAT(converted("s", {1, 2, 3, 4, 5}), ElementsAre(1, 2, 3, 4, 5));
}

// Plain copies of the items, laid out and rendered without remembering anything.
struct PlainProject {
  std::vector<std::vector<Item>> modules;

  explicit PlainProject(const CFileParser& parser) {
    const ItemStore& items = parser.Items();
    for (const ItemStore::Module& module : items.Modules()) {
      auto& list = modules.emplace_back();
      for (std::uint32_t i = 0; i < module.count; ++i) list.push_back(items[module.first + i]);
    }
  }

  static void StoreBack(std::vector<Item>& list, const Item& item) {
    if (item.index >= 0 && static_cast<std::size_t>(item.index) < list.size()) {
      list[static_cast<std::size_t>(item.index)] = item;
    }
  }

  static void Align(std::uint32_t& at, std::uint32_t width) {
    while (at % width != 0) ++at;
  }

  // The recursive rule; gives the position behind the last member.
  static std::size_t Structure(std::vector<Item>& list, std::size_t s, std::uint32_t& at) {
    std::uint32_t widest = list[s].offset;
    std::size_t i = s + 1;
    while (i < list.size() && list[i].parent >= static_cast<std::int64_t>(s)) {
      if (list[i].type == ItemType::Struct || list[i].type == ItemType::Array) {
        i = Structure(list, i, at);
        continue;
      }
      const std::uint32_t width = ScalarWidth(list[i].type);
      if (width > 0) {
        Align(at, width);
        widest = width == 4 ? 4 : std::max(widest, width);
        Item member = list[i];
        member.offset = at;
        StoreBack(list, member);
        at += width;
      }
      ++i;
    }
    if (widest == 2 || widest == 4) Align(at, widest);
    Item item = list[s];
    item.length = at;
    item.offset = widest;
    StoreBack(list, item);
    return i;
  }

  void LayOut() {
    for (auto& list : modules) {
      for (std::size_t i = 0; i < list.size();) {
        std::uint32_t at = 0;
        if (list[i].parent == -1 && list[i].type == ItemType::Struct) {
          i = Structure(list, i, at);
        } else if (list[i].parent == -1 && list[i].type == ItemType::Array) {
          const std::size_t array = i;
          const std::uint32_t size = list[i].size;
          std::uint32_t last = 0;
          ++i;
          for (std::uint32_t k = 0; k < size && i < list.size(); ++k, ++i) {
            Item element = list[i];
            last = element.length;
            if (const std::uint32_t width = ScalarWidth(element.type); width > 0) {
              Align(at, width);
              element.offset = at;
              at += width;
            }
            StoreBack(list, element);
          }
          Item item = list[array];
          item.length = last * size;
          StoreBack(list, item);
        } else {
          ++i;
        }
      }
    }
  }

  Bytes Records(ByteOrder order) const {
    Bytes image(200000, 0);
    const auto store = [&](std::size_t at, std::uint64_t value, std::size_t width) {
      for (std::size_t i = 0; i < width; ++i) {
        const std::size_t shift = order == ByteOrder::Little ? i : width - 1 - i;
        image[at + i] = static_cast<std::uint8_t>(value >> (8 * shift));
      }
    };
    std::size_t at = 0;
    std::size_t length = 0;
    const auto next = [&] {
      if (length > 0) at = (at + length + 4 + 3) / 4 * 4;
    };
    for (const auto& list : modules) {
      for (const Item& item : list) {
        const std::uint32_t width = ScalarWidth(item.type);
        const std::uint64_t value = std::strtoull(
            item.content.c_str(), nullptr, item.content.find('x') == std::string::npos ? 10 : 16);
        if (item.parent == -1) {
          next();
          length = item.length;
          if (width > 0 || item.type == ItemType::Array || item.type == ItemType::Struct) {
            store(at, item.id, 2);
            store(at + 2, item.length, 2);
          }
          store(at + 4, value, width);
        } else {
          store(at + 4 + item.offset, value, width);
        }
      }
    }
    next();
    image.resize(at);
    return image;
  }
};

TEST(Image, IsTheSameAsOneBuiltAnewAfterAnyChanges) {
  for (unsigned seed = 1; seed <= 80; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&](int limit) {
      return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    // Every other project has items that do not stand where their index says.
    const bool orderly = seed % 2 == 0;
    std::vector<std::vector<TestItem>> modules(2);
    for (auto& items : modules) {
      const int count = 1 + below(40);
      for (int i = 0; i < count; ++i) {
        items.push_back({.name = "i" + std::to_string(orderly ? i : below(count)),
                         .type = below(8),
                         .parent = below(3) == 0 ? -1 : below(i + 1) - 1,
                         .length = static_cast<std::uint32_t>(below(6)),
                         .content = std::to_string(below(300) - 100),
                         .id = static_cast<std::uint32_t>(below(70000)),
                         .size = static_cast<std::uint32_t>(below(5)),
                         .index = orderly || below(4) ? i : below(count)});
      }
    }
    const auto parser = Load(modules);
    for (int step = 0; step < 40; ++step) {
      const std::uint32_t count = parser->Items().Items().Size();
      for (int change = below(4); change > 0; --change) {
        const Item& item = parser->Items()[static_cast<std::uint32_t>(random()) % count];
        parser->SetItemContent(0, item.fullPath, "0x" + std::to_string(below(1000)));
      }
      PlainProject plain(*parser);
      plain.LayOut();
      const ImageContext context{below(4) ? ByteOrder::Big : ByteOrder::Little, 0};
      ASSERT_THAT(Records(*parser, context), ElementsAreArray(plain.Records(context.order)));
      std::uint32_t at = 0;
      for (const auto& list : plain.modules) {
        for (const Item& item : list) ASSERT_EQ(parser->Items()[at++], item);
      }
    }
  }
}

}  // namespace
}  // namespace merovane::nvproject::testing
