// Places computed by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

// Offset and length of every item after a layout.
std::vector<std::pair<std::uint32_t, std::uint32_t>> Places(CFileParser& parser) {
  parser.LayoutItems();
  std::vector<std::pair<std::uint32_t, std::uint32_t>> places;
  const ItemStore& items = parser.Items();
  for (std::uint32_t i = 0; i < items.Size(); ++i) {
    places.emplace_back(items[i].offset, items[i].length);
  }
  return places;
}

auto Places(const std::vector<TestItem>& items) { return Places(*Load({items})); }

TEST(Layout, AlignsMembersToTheirWidth) {
  const auto parser = Load({{{.name = "s", .type = kStruct},
                             {.name = "a", .type = kChar, .parent = 0},
                             {.name = "b", .type = kLong, .parent = 0},
                             {.name = "c", .type = kChar, .parent = 0}}});
  // Asking for an offset lays out first. Letter case counts.
  EXPECT_EQ(parser->ItemOffset("s.b"), 4U);
  EXPECT_EQ(parser->ItemOffset("s.B"), std::nullopt);
  EXPECT_THAT(Places(*parser), ElementsAre(Pair(4, 12), Pair(0, 0), Pair(4, 0), Pair(8, 0)));
}

TEST(Layout, LaysArraysOutByTheirSize) {
  std::vector<TestItem> items = {{.name = "a", .type = kArray, .length = 99, .size = 16}};
  for (int i = 0; i < 16; ++i) {
    items.push_back({.name = "a[]", .type = kShort, .parent = 0, .length = 2});
  }
  const auto places = Places(items);
  EXPECT_THAT(places[0], Pair(0, 32));
  for (std::uint32_t i = 0; i < 16; ++i) EXPECT_THAT(places[i + 1], Pair(2 * i, 2));

  // The last element's length counts; one that is no scalar takes no room; what stands after the
  // size is no element.
  EXPECT_THAT(Places({{.name = "a", .type = kArray, .size = 4},
                      {.name = "a[0]", .type = kChar, .parent = 0, .length = 1},
                      {.name = "a[1]", .type = kLong, .parent = 0, .length = 4},
                      {.name = "a[2]", .type = kString, .parent = 0, .length = 5},
                      {.name = "a[3]", .type = kShort, .parent = 0, .length = 7},
                      {.name = "a[4]", .type = kShort, .parent = 0, .length = 2}}),
              ElementsAre(Pair(0, 28), Pair(0, 1), Pair(4, 4), Pair(0, 5), Pair(8, 7), Pair(0, 2)));
}

TEST(Layout, NestedStructuresGoOnAtTheOuterPosition) {
  EXPECT_THAT(
      Places({{.name = "s", .type = kStruct},
              {.name = "a", .type = kChar, .parent = 0},
              {.name = "n", .type = kStruct, .parent = 0},
              {.name = "b", .type = kShort, .parent = 2},
              {.name = "c", .type = kChar, .parent = 2},
              {.name = "d", .type = kLong, .parent = 0},
              {.name = "l", .type = kArray, .parent = 0, .length = 3, .size = 3},
              {.name = "l[0]", .type = kChar, .parent = 6, .length = 1},
              {.name = "l[1]", .type = kChar, .parent = 6, .length = 1},
              {.name = "l[2]", .type = kChar, .parent = 6, .length = 1},
              {.name = "t", .type = kString, .parent = 0, .length = 8},
              {.name = "e", .type = kChar, .parent = 0}}),
      // A nested structure's length is where it ends in the whole.
      ElementsAre(Pair(4, 16), Pair(0, 0), Pair(2, 6), Pair(2, 0), Pair(4, 0), Pair(8, 0),
                  Pair(1, 15), Pair(12, 1), Pair(13, 1), Pair(14, 1), Pair(0, 8), Pair(15, 0)));
}

TEST(Layout, AlignmentOfANestedStructureDoesNotWidenTheOuterOne) {
  const std::vector<TestItem> items = {{.name = "s", .type = kStruct},
                                       {.name = "n", .type = kStruct, .parent = 0},
                                       {.name = "x", .type = kLong, .parent = 1},
                                       {.name = "c", .type = kChar, .parent = 0}};
  EXPECT_THAT(Places(items), ElementsAre(Pair(1, 5), Pair(4, 4), Pair(0, 0), Pair(4, 0)));
  // A structure of structures only has no alignment of its own.
  EXPECT_THAT(Places({items[0], items[1], items[2]}),
              ElementsAre(Pair(0, 4), Pair(4, 4), Pair(0, 0)));
}

TEST(Layout, ARunGoesOnFromTheAlignmentsOfTheLast) {
  // The first run stores "c" in the place of "x" and leaves the structure the alignment of a long.
  const auto parser = Load({{{.name = "s", .type = kStruct},
                             {.name = "x", .type = kLong, .parent = 0},
                             {.name = "c", .type = kChar, .parent = 0, .index = 1}}});
  EXPECT_THAT(Places(*parser), ElementsAre(Pair(4, 8), Pair(4, 0), Pair(0, 0)));
  EXPECT_THAT(Places(*parser), ElementsAre(Pair(4, 4), Pair(1, 0), Pair(0, 0)));
  const auto nested = Load({{{.name = "s", .type = kStruct},
                             {.name = "n", .type = kStruct, .parent = 0},
                             {.name = "x", .type = kLong, .parent = 1},
                             {.name = "c", .type = kChar, .parent = 1, .index = 2}}});
  EXPECT_THAT(Places(*nested), ElementsAre(Pair(0, 8), Pair(4, 8), Pair(4, 0), Pair(0, 0)));
  EXPECT_THAT(Places(*nested), ElementsAre(Pair(0, 4), Pair(4, 4), Pair(1, 0), Pair(0, 0)));
}

TEST(Layout, AStructureOrArrayReturnsToThePlaceThatAMemberOfItsIndexTook) {
  const TestItem value = {.name = "l", .type = kLong, .parent = 0, .content = "0xAABBCCDD"};
  const TestItem last = {.name = "t", .type = kShort, .length = 2, .content = "0x2222", .id = 4};
  TestItem element = value;
  element.length = 4;
  element.index = 0;
  const std::vector<std::vector<TestItem>> modules = {
      {{.name = "s", .type = kStruct, .id = 1},
       {.name = "x", .type = kArray, .parent = 0, .size = 1, .index = 0},
       value,
       last},
      {{.name = "s", .type = kArray, .id = 1, .size = 1}, element, last}};
  for (const auto& items : modules) {
    const auto parser = Load({items});
    for (int run = 0; run < 2; ++run) {
      std::vector<std::uint8_t> image;
      ASSERT_EQ(Generate(*parser, image), Result::Success);
      EXPECT_THAT(std::vector(image.begin() + 4, image.end()),
                  ElementsAre(0, 1, 0, 4, 0xAA, 0xBB, 0xCC, 0xDD, 0, 4, 0, 2, 0x22, 0x22, 0, 0));
      EXPECT_EQ(parser->Items()[0].fullPath, "s");
    }
  }
}

TEST(Layout, ListsTopLevelItemsWithTheirPlaceInTheImage) {
  const auto parser = Load({{{.name = "a", .type = kChar, .length = 1},
                             {.name = "b", .type = kShort, .length = 2},
                             {.name = "c", .type = kString, .length = 5}},
                            {{.name = "s", .type = kStruct},
                             {.name = "m", .type = kShort, .parent = 0},
                             {.name = "d", .type = kLong, .length = 4}}});
  const auto places = Places(*parser);
  // Lying in the image is not written to the items.
  EXPECT_THAT(places,
              ElementsAre(Pair(0, 1), Pair(0, 2), Pair(0, 5), Pair(2, 2), Pair(0, 0), Pair(0, 4)));
  // Another run neither changes them nor lets the list grow.
  EXPECT_EQ(Places(*parser), places);
  std::vector<std::vector<std::uint32_t>> rows;
  for (const TopLevelItem& top : parser->TopLevelItems()) {
    rows.push_back({top.item, top.module, top.offset, top.length});
  }
  EXPECT_THAT(
      rows, ElementsAre(ElementsAre(0, 0, 8, 1), ElementsAre(1, 0, 16, 2), ElementsAre(2, 0, 24, 5),
                        ElementsAre(3, 1, 36, 2), ElementsAre(5, 1, 44, 4)));
}

}  // namespace
}  // namespace merovane::nvproject::testing
