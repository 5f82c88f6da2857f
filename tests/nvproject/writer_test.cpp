// Writing project and module files, byte for byte, and what protects them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "nvproject/support.h"
#include "platform/files.h"

namespace merovane::nvproject::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string Golden(const std::string& name) {
  return test::FileText(std::string(NVPROJECT_GOLDEN) + "/" + name);
}

// The text with the directory's path replaced by "<dir>".
std::string WithoutDirectory(std::string text, const test::TempDirectory& directory) {
  const std::string path = directory.Path().string();
  for (std::size_t at = text.find(path); at != std::string::npos; at = text.find(path)) {
    text.replace(at, path.size(), "<dir>");
  }
  return text;
}

class Writer : public ::testing::Test {
 protected:
  void SetUp() override {
    directory.Write("p.prj",
                    "PROJECT = handset\nALIGNMENT = 4\nTARGET = nv.bin\nDESCRIPTION = all\n"
                    "MODULE = first.nvm\nMODULE = second.nvm\n");
    directory.Write(
        "first.nvm",
        "MODULE = first\nDESCRIPTION = one\n"
        "BEGIN_ITEM\nITEM_NAME = list\nITEM_ID = 5\nITEM_TYPE = 5\nITEM_SIZE = 2\n"
        "ITEM_LENGTH = 4\nITEM_PARENT = -1\nITEM_DESC = two values\nEND_ITEM\n"
        "BEGIN_ITEM\nITEM_NAME = list[0]\nITEM_TYPE = 2\nITEM_SIZE = 9\nITEM_LENGTH = 2\n"
        "ITEM_INDEX = 1\nITEM_CONTENT = 5\nEND_ITEM\n"
        "BEGIN_ITEM\nITEM_NAME = list[1]\nITEM_ID = -1\nITEM_TYPE = 3\n"
        "ITEM_LENGTH = 2147483648\nITEM_INDEX = 2\nEND_ITEM\n");
    directory.Write("second.nvm", "MODULE = second\n");
    ASSERT_TRUE(parser.LoadProject((directory / "p.prj").string()));
    ASSERT_TRUE(parser.SetItemContent(0, "list[0]", "0X1F"));
  }

  test::TempDirectory directory;
  CaughtMessages messages;
  CFileParser parser;
};

TEST_F(Writer, SavesProjectAndModules) {
  EXPECT_TRUE(parser.Changed());
  ASSERT_TRUE(parser.SaveProject());
  EXPECT_FALSE(parser.Changed());
  const auto saved = [&](const char* name) {
    return WithoutDirectory(test::FileText(directory / name), directory);
  };
  EXPECT_EQ(saved("p.prj"), Golden("saved.prj"));
  EXPECT_EQ(saved("first.nvm"), Golden("saved_first.nvm"));
  EXPECT_EQ(saved("second.nvm"), Golden("saved_second.nvm"));
  EXPECT_THAT(messages.Texts(), IsEmpty());
}

TEST_F(Writer, SavedProjectReadsBackAndItsDescriptionsGrow) {
  ASSERT_TRUE(parser.SaveProject());
  CFileParser again;
  ASSERT_TRUE(again.LoadProject((directory / "p.prj").string()));
  EXPECT_EQ(again.Project().target, parser.Project().target);
  EXPECT_EQ(again.Modules()[1].path, parser.Modules()[1].path);
  ASSERT_EQ(again.Items().Size(), 3U);
  for (std::uint32_t i = 0; i < 3; ++i) {
    Item expected = parser.Items()[i];
    // An empty description becomes what follows the "=".
    const std::string description = i == 0 ? "  two values\n" : " \n";
    expected.description = description;
    if (expected.type != ItemType::Array) expected.size = 0;
    expected.line = again.Items()[i].line;
    EXPECT_EQ(again.Items()[i], expected) << i;
  }
}

TEST_F(Writer, CreatesANewProjectThatCannotBeRead) {
  CFileParser fresh;
  const std::string path = (directory / "n.prj").string();
  ASSERT_TRUE(fresh.CreateProject("fresh", path, "C:\\out", "unused"));
  EXPECT_EQ(test::FileText(path), Golden("new.prj"));
  ASSERT_TRUE(fresh.CreateProject("fresh", path, "", ""));
  EXPECT_EQ(test::FileText(path), Golden("new_without_target.prj"));
  EXPECT_FALSE(CFileParser().LoadProject(path));
  // Texts are cut to their fields.
  ASSERT_TRUE(fresh.CreateProject(std::string(64, 'n'), path, std::string(300, 't'),
                                  std::string(300, 'd')));
  EXPECT_EQ(fresh.Project().name, std::string(63, 'n'));
  EXPECT_EQ(fresh.Project().target, std::string(259, 't'));
  EXPECT_EQ(fresh.Project().description, std::string(255, 'd'));
}

TEST_F(Writer, RewritesAReadOnlyFileAndLeavesItReadOnly) {
  const std::string file = (directory / "first.nvm").string();
  ASSERT_TRUE(platform::SetReadOnly(file, true));
  EXPECT_TRUE(parser.SaveModule(0));
  EXPECT_EQ(test::FileText(file), Golden("saved_first.nvm"));
  EXPECT_TRUE(platform::IsReadOnly(file));
  EXPECT_THAT(messages.Texts(), IsEmpty());
  platform::SetReadOnly(file, false);
}

TEST_F(Writer, FailureIsShownAndStopsTheProjectOnly) {
  const std::string module = (directory / "first.nvm").string();
  std::filesystem::remove(module);
  std::filesystem::create_directory(module);
  std::filesystem::create_directory(std::filesystem::path(module) / "in the way");
  EXPECT_TRUE(parser.SaveProject());
  EXPECT_THAT(messages.Texts(), ElementsAre("Error: Can't open file " + module + "!"));
  EXPECT_EQ(test::FileText(directory / "second.nvm"), Golden("saved_second.nvm"));

  CFileParser fresh;
  const std::string nowhere = (directory / "none/n.prj").string();
  EXPECT_FALSE(fresh.CreateProject("fresh", nowhere, "", ""));
  EXPECT_EQ(messages.Texts().back(), "Error: Can't open file " + nowhere + "!");
}

}  // namespace
}  // namespace merovane::nvproject::testing
