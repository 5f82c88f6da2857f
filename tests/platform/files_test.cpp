#include "platform/files.h"

#include <gtest/gtest.h>

#include <array>
#include <iterator>
#include <string>
#include <utility>

#include "platform/system.h"

namespace merovane::platform {
namespace {

using test::Content;
using test::ScratchDirectory;
using test::WriteContent;

TEST(AppendFile, MakesItsDirectoriesAndGoesOnAtTheEnd) {
  const ScratchDirectory directory;
  const auto path = directory / "Log" / "2024-01-31" / "Com3_AllLog.txt";
  for (const char* text : {"one ", "two"}) {
    AppendFile file;
    ASSERT_TRUE(file.Open(path));
    EXPECT_TRUE(file.Write(std::string_view(text)));
    EXPECT_TRUE(file.Write({}));
    EXPECT_EQ(file.Size(), Content(path).size()) << "what is written is there at once";
  }
  EXPECT_EQ(Content(path), "one two");
}

TEST(AppendFile, IsClosedWhenItCannotBeOpenedAndMovesItsFile) {
  const ScratchDirectory directory;
  AppendFile file;
  EXPECT_FALSE(file.Write(std::string_view("x")));
  ASSERT_TRUE(file.Open(directory / "a.txt"));
  AppendFile other(std::move(file));
  EXPECT_TRUE(other.IsOpen());
  file = std::move(other);
  EXPECT_TRUE(file.Write(std::string_view("x")));
  EXPECT_FALSE(file.Open(directory.Path()));
  EXPECT_FALSE(file.IsOpen());
  EXPECT_FALSE(file.Open(directory / "a.txt" / "b.txt"));
}

TEST(ReadOnly, IsSetAndClearedAndKeepsAWriterOut) {
  const ScratchDirectory directory;
  const auto path = directory / "module.txt";
  WriteContent(path, "old");
  EXPECT_FALSE(IsReadOnly(path));
  EXPECT_TRUE(SetReadOnly(path, true));
  EXPECT_TRUE(IsReadOnly(path));
  EXPECT_FALSE(ReplaceFile(path, std::string_view("new")));
  EXPECT_EQ(Content(path), "old");
  EXPECT_TRUE(SetReadOnly(path, false));
  EXPECT_FALSE(IsReadOnly(path));
  EXPECT_TRUE(ReplaceFile(path, std::string_view("new")));
  EXPECT_EQ(Content(path), "new");

  EXPECT_FALSE(SetReadOnly(directory / "missing", true));
  EXPECT_FALSE(IsReadOnly(directory / "missing"));
}

TEST(ReplaceFile, PutsTheNewContentInPlaceAndLeavesNothingElse) {
  const ScratchDirectory directory;
  const auto path = directory / "project.txt";
  for (const std::string& content :
       {std::string("first"), std::string(100'000, 'x'), std::string()}) {
    ASSERT_TRUE(ReplaceFile(path, content));
    EXPECT_EQ(Content(path), content);
  }
  EXPECT_FALSE(ReplaceFile(directory / "missing" / "project.txt", std::string_view("x")));
  EXPECT_FALSE(ReplaceFile(directory.Path(), std::string_view("x")));
  const std::filesystem::directory_iterator left(directory.Path());
  EXPECT_EQ(std::distance(begin(left), end(left)), 1);
}

TEST(Paths, TakeBothSeparatorsAndComeBackAsText) {
  const ScratchDirectory directory;
  std::filesystem::create_directory(directory / "sub");
  const std::string text = TextFromPath(directory.Path()) + "\\sub/name.txt";
  WriteContent(PathFromText(text), "x");
  EXPECT_EQ(Content(directory / "sub" / "name.txt"), "x");
  EXPECT_EQ(PathFromText("a\\b/c.txt").filename(), "c.txt");
  EXPECT_EQ(PathFromText("a\\b/c.txt").parent_path().filename(), "b");
  EXPECT_TRUE(PathFromText("").empty());
}

TEST(Paths, AreThoseOfTheProgramAndTheSystem) {
  EXPECT_TRUE(std::filesystem::is_directory(TemporaryDirectory()));
  EXPECT_TRUE(ExecutableDirectory().is_absolute());
  bool found = false;
  for (const char* name : {"platform_test", "platform_test.exe"}) {
    found = found || std::filesystem::exists(ExecutableDirectory() / name);
  }
  EXPECT_TRUE(found);
}

}  // namespace
}  // namespace merovane::platform
