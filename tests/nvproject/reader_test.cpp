// Reading project and module files: lines, keys, values, and which of them count.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::SizeIs;

// A project whose one module file is this text.
std::unique_ptr<CFileParser> LoadModuleText(const std::string& text) {
  auto parser = ParserOf({{"d\\p", "MODULE = m\n"}, {"d\\m", text}});
  EXPECT_TRUE(parser->LoadProject("d\\p"));
  return parser;
}

const Item& OnlyItem(const CFileParser& parser) {
  EXPECT_EQ(parser.Items().Size(), 1U);
  return parser.Items()[0];
}

TEST(Reader, TakesProjectAndModuleKeys) {
  auto parser = ParserOf({{"C:\\nv\\p.prj",
                           "# Quorvantel Kestrane Project File, Format Version 1.0\r\n\r\n"
                           "  PROJECT     =  handset\r\n  ALIGNMENT   =  -4\r\n"
                           "  TARGET      =  out\\nv.bin extra\r\n"
                           "  DESCRIPTION =  several words\r\n  MODULE     =  a.nvm\r\n"
                           "PROJECT=glued\r\nproject = lower\r\nOTHER = x\r\n"},
                          {"C:\\nv\\a.nvm", "\tMODULE = one two\nDESCRIPTION = three four\n"}});
  ASSERT_TRUE(parser->LoadProject("C:\\nv\\p.prj"));
  EXPECT_EQ(parser->Project().name, "handset");
  EXPECT_EQ(parser->Project().alignment, -4);
  EXPECT_EQ(parser->Project().target, "C:\\nv\\out\\nv.bin");
  EXPECT_EQ(parser->Project().description, "several");
  ASSERT_THAT(parser->Modules(), SizeIs(1));
  EXPECT_EQ(parser->Modules()[0].name, "one");
  EXPECT_EQ(parser->Modules()[0].description, "three");
  EXPECT_EQ(parser->Modules()[0].path, "C:\\nv\\a.nvm");
  EXPECT_FALSE(parser->Changed());
}

TEST(Reader, TakesItemKeysInAnyOrderAndOutsideOfItems) {
  const auto parser = LoadModuleText(
      "ITEM_PARENT = 7\n"
      "BEGIN_ITEM\n"
      "   ITEM_TYPE    = 5 (ARRAY)\n ITEM_LENGTH = +32\n ITEM_ID = 4294967295\n"
      "ITEM_PARENT = -1\n ITEM_SIZE = 16abc\n ITEM_NAME = first second\n"
      "ITEM_CONTENT = 0x1F and more\n ITEM_INDEX = 3\n ITEM_DESC =  two words \r\n"
      "\t# no comment, but no key either\n"
      "END_ITEM\n"
      "BEGIN_ITEM\nITEM_NAME = never_ended\n");
  const Item& item = OnlyItem(*parser);
  EXPECT_EQ(item.name, "first");
  EXPECT_EQ(item.fullPath, "first");
  EXPECT_EQ(item.type, ItemType::Array);
  EXPECT_EQ(item.length, 32U);
  EXPECT_EQ(item.id, 4294967295U);
  EXPECT_EQ(item.size, 16U);
  EXPECT_EQ(item.content, "0x1F");
  EXPECT_EQ(item.index, 3);
  EXPECT_EQ(item.description, "  two words \n");
  EXPECT_EQ(item.offset, 0U);
}

TEST(Reader, BeginClearsAndEndDoesNot) {
  const auto parser = LoadModuleText(
      "BEGIN_ITEM\nITEM_NAME = a\nITEM_PARENT = -1\nITEM_CONTENT = 5\nITEM_DESC =x\n"
      "END_ITEM\nITEM_INDEX = 1\nEND_ITEM\nBEGIN_ITEM\nEND_ITEM\n");
  ASSERT_EQ(parser->Items().Size(), 3U);
  EXPECT_EQ(parser->Items()[1].name, "a");
  EXPECT_EQ(parser->Items()[1].index, 1);
  EXPECT_EQ(parser->Items()[1].description, "x\n");
  // Without a name, and with parent 0.
  EXPECT_EQ(parser->Items()[2].fullPath, "a.");
  EXPECT_EQ(parser->Items()[2].description, "");
}

TEST(Reader, ValueThatCannotBeReadLeavesTheFieldAsItWas) {
  const auto parser = LoadModuleText(
      "BEGIN_ITEM\nITEM_NAME = a\nITEM_LENGTH = 9\nITEM_PARENT = -1\nITEM_NAME =   \n"
      "ITEM_LENGTH = none\nITEM_LENGTH = -\nITEM_LENGTH\nITEM_CONTENT\nEND_ITEM\n");
  EXPECT_EQ(OnlyItem(*parser).name, "a");
  EXPECT_EQ(OnlyItem(*parser).length, 9U);
}

TEST(Reader, LongLinesAreReadInPieces) {
  // The piece after the first 259 characters is a line of its own, with a key of its own.
  const std::string filler = "ITEM_NAME = " + std::string(300, 'n');
  const std::string key(259, '#');
  for (const char* const lineEnd : {"\n", "\r\n"}) {
    std::string text = "BEGIN_ITEM\nITEM_PARENT = -1\n";
    text.append(filler).append(lineEnd);
    text.append(key).append("ITEM_LENGTH = 12").append(lineEnd);
    text.append(key).append(lineEnd);
    text.append("END_ITEM").append(lineEnd);
    const auto parser = LoadModuleText(text);
    EXPECT_EQ(OnlyItem(*parser).name, std::string(63, 'n'));
    EXPECT_EQ(OnlyItem(*parser).length, 12U);
  }
}

TEST(Reader, PieceHoldsItsLineEndWhenThereIsRoom) {
  constexpr std::string_view kStart = "ITEM_DESC =";
  for (const std::size_t total : {257U, 258U, 259U, 260U}) {
    std::string line(kStart);
    line.resize(total, 'd');
    const auto parser = LoadModuleText(
        std::string("BEGIN_ITEM\nITEM_PARENT = -1\n").append(line).append("\r\nEND_ITEM\n"));
    std::string expected = line.substr(kStart.size()).append("\n");
    expected.resize(std::min(expected.size(), 259 - kStart.size()));
    EXPECT_EQ(OnlyItem(*parser).description, expected) << total;
  }
}

TEST(Reader, ZeroByteEndsAPiece) {
  using namespace std::string_literals;
  const auto parser = LoadModuleText(
      "BEGIN_ITEM\nITEM_PARENT = -1\nITEM_DESC =ab\0cd\nITEM_NAME = x\0y\nEND_ITEM\0 z\n"s);
  EXPECT_EQ(OnlyItem(*parser).description, "ab");
  EXPECT_EQ(OnlyItem(*parser).name, "x");
}

TEST(Reader, FailsWithoutModules) {
  EXPECT_FALSE(ParserOf({{"d\\p", "PROJECT = p\n"}})->LoadProject("d\\p"));
  EXPECT_FALSE(ParserOf({{"d\\p", ""}})->LoadProject("d\\p"));
  EXPECT_FALSE(ParserOf({})->LoadProject("d\\p"));
  EXPECT_FALSE(ParserOf({{"", "MODULE = m\n"}})->LoadProject(""));
  // One that is missing fails the whole, an unnamed one too.
  EXPECT_FALSE(ParserOf({{"d\\p", ProjectFile({"m", "n"})}, {"d\\m", ""}})->LoadProject("d\\p"));
  EXPECT_FALSE(ParserOf({{"d\\p", "MODULE = m\nMODULE =\n"}, {"d\\m", ""}})->LoadProject("d\\p"));
}

TEST(Reader, ProjectWithoutDirectoryEndsAtTheFirstPathAndStaysOpen) {
  auto parser = ParserOf({{"p", "PROJECT = x\nMODULE = m\nDESCRIPTION = y\n"}, {"m", ""}});
  EXPECT_TRUE(parser->LoadProject("p"));
  EXPECT_EQ(parser->Project().name, "x");
  EXPECT_EQ(parser->Project().description, "");
  EXPECT_THAT(parser->Modules(), SizeIs(0));
  EXPECT_FALSE(parser->LoadProject("p"));
  const test::TempDirectory directory;
  EXPECT_FALSE(parser->CreateProject("n", (directory / "new").string(), "", ""));
  EXPECT_FALSE(std::filesystem::exists(directory / "new"));
}

TEST(Reader, OnlyAbsolutePathsDoNotFollowTheProjectsFolder) {
  const std::string root = std::filesystem::temp_directory_path().string();
  auto absolute =
      ParserOf({{"p", "TARGET = " + root + "/t\nMODULE = " + root + "/m\n"}, {root + "/m", ""}});
  EXPECT_TRUE(absolute->LoadProject("p"));
  EXPECT_THAT(absolute->Modules(), SizeIs(1));
  EXPECT_EQ(absolute->Project().target, root + "/t");

  // A leading separator alone names no place of its own.
  auto leading = ParserOf({{"d\\p", "TARGET = \\t\nMODULE = \\x\\m\n"}, {"d\\\\x\\m", ""}});
  EXPECT_TRUE(leading->LoadProject("d\\p"));
  EXPECT_EQ(leading->Project().target, "d\\\\t");
  auto nested = ParserOf({{"a/b\\p", "MODULE = c/m\nTARGET =\n"}, {"a/b\\c/m", ""}});
  EXPECT_TRUE(nested->LoadProject("a/b\\p"));
  EXPECT_EQ(nested->Project().target, "");
}

}  // namespace
}  // namespace merovane::nvproject::testing
