// Files that nobody should have written: a result, never a crash, a hang or memory without bound.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "nvproject/project_input.h"
#include "nvproject/support.h"

namespace merovane::nvproject::testing {
namespace {

Result Image(CFileParser& parser) {
  std::vector<std::uint8_t> image;
  return Generate(parser, image);
}

TEST(BadInput, CorpusRuns) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(NVPROJECT_CORPUS)) {
    SCOPED_TRACE(entry.path().string());
    fuzzing::RunProjectInput(test::FileText(entry.path().string()));
    ++files;
  }
  EXPECT_GT(files, 5);
}

TEST(BadInput, FilesThatAreNone) {
  const test::TempDirectory directory;
  std::unique_ptr<CFileParser> project;
  const auto open = [&](const std::string& name) {
    return OpenPrjFile(project, (directory / name).string().c_str());
  };
  std::filesystem::create_directory(directory / "folder");
  directory.Write("empty", "");
  directory.Write("binary", std::string(100000, '\0') + std::string(100000, '\xFF'));
  directory.Write("names_folder", "MODULE = folder\n");
  directory.Write("names_itself", "MODULE = names_itself\n");
  for (const char* name : {"folder", "empty", "binary", "missing", "names_folder"}) {
    EXPECT_EQ(open(name), Result::OpenNvProjectFailed) << name;
  }
  EXPECT_EQ(open(std::string(1000, 'n')), Result::OpenNvProjectFailed);
  EXPECT_EQ(open("names_itself"), Result::Success);
  EXPECT_EQ(OpenPrjFile(project, ""), Result::OpenNvProjectFailed);
}

TEST(BadInput, NumbersInFilesAreNotBelieved) {
  const auto huge =
      Load({{{.name = "a", .type = kArray, .size = 1000000},
             {.name = "a[0]", .type = kShort, .parent = 0, .length = 2},
             {.name = "b", .type = kArray, .length = 4294967295U, .size = 4294967295U}}});
  EXPECT_EQ(Image(*huge), Result::BufferTooSmall);
  const auto wide = Load({{{.name = "a", .type = kShort, .length = 4294967295U},
                           {.name = "b", .type = kShort, .length = 4294967295U}}});
  EXPECT_EQ(Image(*wide), Result::BufferTooSmall);
  // Indices that no list has: what is written back is lost, and nothing else.
  const auto lost = Load({{{.name = "a", .type = kShort, .length = 2, .index = 2147483647},
                           {.name = "b", .type = kShort, .length = 2, .index = -2147483647}}});
  EXPECT_TRUE(lost->SetItemContent(0, "a", "1"));
  EXPECT_TRUE(lost->SetItemContent(0, "b", "1"));
  EXPECT_EQ(Content(*lost, "a"), "");
  EXPECT_EQ(Image(*lost), Result::Success);
}

TEST(BadInput, DeepNestingIsLaidOut) {
  std::vector<TestItem> items;
  items.reserve(10001);
  for (int i = 0; i < 10000; ++i) items.push_back({.name = "s", .type = kStruct, .parent = i - 1});
  items.push_back({.name = "m", .type = kShort, .parent = 9999, .content = "7"});
  const auto parser = Load({items});
  EXPECT_EQ(Image(*parser), Result::Success);
  EXPECT_EQ(parser->Items()[0].length, 2U);
  EXPECT_EQ(parser->ItemOffset("s.s"), 0U);
}

}  // namespace
}  // namespace merovane::nvproject::testing
