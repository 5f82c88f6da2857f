// Full paths, and finding items by them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <random>

#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

std::vector<std::string> Paths(const std::vector<TestItem>& items) {
  const auto parser = Load({items});
  std::vector<std::string> paths;
  for (std::uint32_t i = 0; i < parser->Items().Size(); ++i) {
    paths.emplace_back(parser->Items()[i].fullPath);
  }
  return paths;
}

TEST(FullPath, FollowsTheKindOfParentAndName) {
  const std::vector<std::pair<TestItem, std::string>> cases = {
      {{.name = "top", .type = kStruct}, "top"},
      {{.name = "list", .type = kArray, .parent = 0}, "top.list"},
      {{.name = "list[0x3]", .parent = 1}, "top.list[0x3]"},
      {{.name = "plain", .parent = 1}, "top.listplain"},
      {{.name = "other[2]", .parent = 0}, "top.[2]"},
      {{.name = "adc[0]", .parent = 0}, "top.adc[0]"},
      {{.name = "battery[1]", .parent = 1}, "top.list.battery[1]"},
      {{.name = "RF_ramp_up_table_stage0[3]", .parent = 0}, "top.RF_ramp_up_table_stage0[3]"},
      {{.name = "xRF_ramp_down_table_stage1[3]", .parent = 1},
       "top.list.xRF_ramp_down_table_stage1[3]"},
      {{.name = "rf_ramp_up_table_stage0[3]", .parent = 1}, "top.list[3]"},
      {{.name = "ADC[0]", .parent = 1}, "top.list[0]"},
      {{.name = "nothing[0]", .parent = 99}, ".[0]"},
      {{.name = "later", .parent = 13}, ".later"},
      {{.name = "adc[7]"}, "adc[7]"},
      {{.name = "self", .parent = 14}, ".self"},
  };
  std::vector<TestItem> items;
  std::vector<std::string> expected;
  for (const auto& [item, path] : cases) {
    items.push_back(item);
    expected.push_back(path);
  }
  EXPECT_EQ(Paths(items), expected);
}

TEST(FullPath, ParentIsTheFirstItemOfItsIndex) {
  EXPECT_EQ(Paths({{.name = "a", .type = kStruct, .index = 4},
                   {.name = "b", .type = kStruct, .index = 1},
                   {.name = "c", .type = kStruct, .index = 4},
                   {.name = "d", .type = kStruct, .index = 1},
                   {.name = "x", .parent = 4},
                   {.name = "y", .parent = 1},
                   {.name = "e", .type = kStruct, .index = -5},
                   {.name = "z", .parent = -5}}),
            (std::vector<std::string>{"a", "b", "c", "d", "a.x", "b.y", "e", "e.z"}));
}

TEST(FullPath, IsCutTo511Characters) {
  std::vector<TestItem> items;
  items.reserve(20);
  for (int i = 0; i < 20; ++i) {
    items.push_back({.name = std::string(63, 'n'), .type = kStruct, .parent = i - 1});
  }
  const auto paths = Paths(items);
  EXPECT_EQ(paths[6].size(), 7U * 64 - 1);
  EXPECT_EQ(paths[7].size(), 511U);
  EXPECT_EQ(paths[19], paths[7]);
}

TEST(Lookup, IgnoresCaseAndModuleAndTakesTheFirst) {
  const auto parser = Load({{{.name = "Same", .content = "1"}, {.name = "b", .content = "2"}},
                            {{.name = "sAME", .content = "3"}, {.name = "z@[`{", .content = "4"}}});
  EXPECT_EQ(Content(*parser, "SAME"), "1");
  EXPECT_EQ(Content(*parser, "Z@[`{"), "4");
  // Only letters have case.
  EXPECT_EQ(Content(*parser, "z`{@["), "?");
  EXPECT_EQ(Content(*parser, ""), "?");
  EXPECT_TRUE(parser->GetItemContent(9, "b", nullptr));
  EXPECT_FALSE(parser->GetItemContent(0, "c", nullptr));
  EXPECT_EQ(parser->Items().FindExact("sAME"), 2U);
  EXPECT_EQ(parser->Items().FindExact("SAME"), kNoItem);
}

// The content of the first item of that path, letter case ignored; "?" when there is none.
std::string Scan(const ItemStore& items, std::string_view path) {
  const auto same = [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
  };
  for (std::uint32_t at = 0; at < items.Size(); ++at) {
    if (std::ranges::equal(items[at].fullPath, path, same)) return items[at].content;
  }
  return "?";
}

TEST(Lookup, AnswersAsALinearScanWhateverIsWritten) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto below = [&](int limit) {
      return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    std::vector<std::vector<TestItem>> modules(1 + static_cast<std::size_t>(below(3)));
    for (auto& items : modules) {
      const int count = 1 + below(30);
      for (int i = 0; i < count; ++i) {
        // Few names, so that paths repeat; some indices name other items, or none.
        const int index = below(3) == 0 ? below(count + 4) - 2 : i;
        items.push_back({.name = std::string(1, static_cast<char>(below(2) ? 'a' : 'A')) +
                                 std::to_string(below(4)),
                         .type = below(2) ? kStruct : kArray,
                         .parent = below(i + 1) - 1,
                         .content = std::to_string(i),
                         .index = index});
      }
    }
    const auto parser = Load(modules);
    const ItemStore& items = parser->Items();
    std::vector<std::string> paths = {"", "a9"};
    for (std::uint32_t i = 0; i < items.Size(); ++i) paths.emplace_back(items[i].fullPath);
    for (int step = 0; step < 60; ++step) {
      const auto chosen = static_cast<std::size_t>(below(static_cast<int>(paths.size())));
      const std::string& path = paths[chosen];
      const bool there = Scan(items, path) != "?";
      ASSERT_EQ(parser->SetItemContent(0, path, std::to_string(1000 + step)), there) << path;
      for (const std::string& each : paths) {
        ASSERT_EQ(Content(*parser, each), Scan(items, each)) << each;
      }
    }
  }
}

}  // namespace
}  // namespace merovane::nvproject::testing
