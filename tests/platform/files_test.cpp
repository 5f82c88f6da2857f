#include "platform/files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "support/temp_directory.h"

namespace merovane::platform {
namespace {

using merovane::test::FileText;
using merovane::test::TempDirectory;

constexpr std::string_view kNew = "new";

TEST(AppendFile, MakesItsDirectoriesAndGoesOnAtTheEnd) {
  const TempDirectory directory;
  const auto path = directory / "Log" / "2024-01-31" / "Com3_AllLog.txt";
  for (const char* text : {"one ", "two"}) {
    AppendFile file;
    EXPECT_FALSE(file.Write(kNew));
    ASSERT_TRUE(file.Open(path));
    AppendFile other(std::move(file));
    EXPECT_TRUE(other.IsOpen());
    file = std::move(other);
    EXPECT_TRUE(file.Write(std::string_view(text)));
    EXPECT_TRUE(file.Write({}));
    EXPECT_EQ(file.Size(), FileText(path).size()) << "what is written is there at once";
    EXPECT_FALSE(file.Open(directory.Path()));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(file.Open(path / "b.txt"));
  }
  EXPECT_EQ(FileText(path), "one two");
}

TEST(ReadOnly, IsSetAndClearedAndKeepsAWriterOut) {
  const TempDirectory directory;
  const auto path = directory / "module.txt";
  directory.Write("module.txt", "old");
  EXPECT_FALSE(IsReadOnly(path));
  EXPECT_TRUE(SetReadOnly(path, true));
  EXPECT_TRUE(IsReadOnly(path));
  EXPECT_FALSE(ReplaceFile(path, kNew));
  EXPECT_EQ(FileText(path), "old");
  EXPECT_TRUE(SetReadOnly(path, false));
  EXPECT_FALSE(IsReadOnly(path));
  EXPECT_TRUE(ReplaceFile(path, kNew));
  EXPECT_EQ(FileText(path), kNew);
  EXPECT_FALSE(SetReadOnly(directory / "missing", true));
  EXPECT_FALSE(IsReadOnly(directory / "missing"));
}

TEST(ReplaceFile, PutsTheNewContentInPlaceAndLeavesNothingElse) {
  const TempDirectory directory;
  const auto path = directory / "project.txt";
  for (const std::string& content :
       {std::string("first"), std::string(100'000, 'x'), std::string()}) {
    ASSERT_TRUE(ReplaceFile(path, content));
    EXPECT_EQ(FileText(path), content);
  }
  EXPECT_FALSE(ReplaceFile(directory / "missing" / "project.txt", kNew));
  EXPECT_FALSE(ReplaceFile(directory.Path(), kNew));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.Path()), {}), 1);
}

TEST(Paths, TakeBothSeparatorsAndComeBackAsText) {
  const TempDirectory directory;
  std::filesystem::create_directory(directory / "sub");
  std::ofstream(PathFromText(TextFromPath(directory.Path()) + "\\sub/name.txt")) << "x";
  EXPECT_EQ(FileText(directory / "sub" / "name.txt"), "x");
  EXPECT_EQ(PathFromText("a\\b/c.txt").parent_path().filename(), "b");
  EXPECT_TRUE(PathFromText("").empty());
}

TEST(Paths, AreThoseOfTheProgramAndTheSystem) {
  EXPECT_TRUE(std::filesystem::is_directory(TemporaryDirectory()));
  EXPECT_TRUE(ExecutableDirectory().is_absolute());
  EXPECT_TRUE(std::filesystem::exists(ExecutableDirectory() / "platform_test") ||
              std::filesystem::exists(ExecutableDirectory() / "platform_test.exe"));
  const auto first = MakeTemporaryDirectory("merovane-test-");
  const auto second = MakeTemporaryDirectory("merovane-test-");
  EXPECT_EQ(first, TemporaryDirectory() / first.filename());
  // Each is there and empty.
  EXPECT_TRUE(std::filesystem::remove(first));
  EXPECT_TRUE(std::filesystem::remove(second));
}

}  // namespace
}  // namespace merovane::platform
