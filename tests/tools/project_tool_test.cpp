#include "merovane/project_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "project-generator/project_generator.h"

namespace merovane::tool {
namespace {

using ::testing::HasSubstr;

class ProjectTool : public ::testing::Test {
 protected:
  void SetUp() override {
    directory_ = std::filesystem::temp_directory_path() /
                 (std::string("merovane_tool_") +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(directory_);
    project_ = projectgen::Write(projectgen::Generate({.items = 1300}), directory_).string();
  }
  void TearDown() override { std::filesystem::remove_all(directory_); }

  // Writes a project of one module.
  std::string WriteProject(const std::string& items) {
    const auto path = directory_ / "own.prj";
    std::ofstream(path, std::ios::binary) << "  PROJECT = own\r\n  MODULE = own.nvm\r\n";
    std::ofstream(directory_ / "own.nvm", std::ios::binary) << "  MODULE = own\r\n" << items;
    return path.string();
  }
  static std::string Item(const std::string& name, int type, int index, int parent,
                          const std::string& more = "") {
    std::ostringstream item;
    item << "  BEGIN_ITEM\r\n    ITEM_NAME = " << name << "\r\n    ITEM_TYPE = " << type
         << "\r\n    ITEM_INDEX = " << index << "\r\n    ITEM_PARENT = " << parent
         << "\r\n    ITEM_LENGTH = 4\r\n"
         << more << "  END_ITEM\r\n";
    return item.str();
  }

  int Run(const std::function<int(std::ostream&)>& command) {
    std::ostringstream out;
    const int code = command(out);
    output_ = out.str();
    return code;
  }
  int RunCheck(const std::string& project) {
    return Run([&](auto& out) { return Check(project, out); });
  }
  int RunDiff(const std::string& before, const std::string& after) {
    return Run([&](auto& out) { return Diff(before, after, false, out); });
  }

  std::filesystem::path directory_;
  std::string project_;
  std::string output_;
};

TEST_F(ProjectTool, ShowsTreeAndJson) {
  EXPECT_EQ(Run([&](auto& out) { return Show(project_, "", false, out); }), kOk);
  EXPECT_THAT(output_, HasSubstr("    adc  STRUCT\n      adc[0]  LONG  = "));
  EXPECT_EQ(Run([&](auto& out) { return Show(project_, "BATTERY", true, out); }), kOk);
  const auto whole = nlohmann::json::parse(output_);
  EXPECT_EQ(whole["modules"][0]["items"][1]["path"], "calibration_param_T.adc.battery[1]");
  EXPECT_EQ(whole["modules"][0]["items"].size(), 2U);
}

TEST_F(ProjectTool, SetsWhatGetReadsAndDiffShows) {
  const std::string path = "CALIBRATION_PARAM_T.adc.battery[0]";
  const auto copy = directory_ / "copy";
  std::filesystem::create_directory(copy);
  for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
    if (entry.is_regular_file()) std::filesystem::copy_file(entry, copy / entry.path().filename());
  }
  const std::string changed = (copy / std::filesystem::path(project_).filename()).string();
  EXPECT_EQ(RunDiff(project_, changed), kOk);
  EXPECT_EQ(Run([&](auto& out) { return Set(changed, path, "0x77", out); }), kOk);
  EXPECT_EQ(Run([&](auto& out) { return Get(changed, path, out); }), kOk);
  EXPECT_EQ(output_, "0x77\n");
  EXPECT_EQ(RunDiff(project_, changed), kDifferent);
  EXPECT_THAT(output_, HasSubstr("! calibration_param_T.adc.battery[0]"));
  EXPECT_EQ(std::count(output_.begin(), output_.end(), '\n'), 1);

  EXPECT_THROW(Set(changed, path, "two words", std::cout), Trouble);
  EXPECT_THROW(Set(changed, "no.such.item", "1", std::cout), Trouble);
  EXPECT_THROW(Get((directory_ / "none.prj").string(), path, std::cout), Trouble);
}

TEST_F(ProjectTool, ImagesHaveMapsAndDifferences) {
  const std::string own =
      WriteProject(Item("first", 1, 0, -1,
                        "    ITEM_ID = 5\r\n    ITEM_LENGTH = 1\r\n    ITEM_CONTENT = 7\r\n") +
                   Item("second", 2, 1, -1,
                        "    ITEM_ID = 6\r\n    ITEM_LENGTH = 2\r\n    ITEM_CONTENT = 0x1234\r\n"));
  ImageOptions options;
  options.timeStamp = 0x01020304;
  EXPECT_EQ(Run([&](auto& out) { return Image(own, options, out); }), kOk);
  EXPECT_EQ(output_,
            "00000000: 01 02 03 04 00 05 00 01 07 00 00 00 00 06 00 02 \n00000010: 12 34 00 00 \n");
  options.map = true;
  EXPECT_EQ(Run([&](auto& out) { return Image(own, options, out); }), kOk);
  EXPECT_EQ(output_,
            "  offset  length     id  path\n       8       1      5  first\n      16       2      "
            "6  second\n");

  const auto write = [&](const char* name, bool littleEndian) {
    ImageOptions file;
    file.output = (directory_ / name).string();
    file.littleEndian = littleEndian;
    EXPECT_EQ(Run([&](auto& out) { return Image(own, file, out); }), kOk);
    return *file.output;
  };
  const std::string before = write("before.bin", false);
  ASSERT_EQ(Run([&](auto& out) { return Set(own, "second", "0x1235", out); }), kOk);
  const std::string after = write("after.bin", false);
  EXPECT_EQ(RunDiff(before, after), kDifferent);
  EXPECT_EQ(output_, "! item 6  2 bytes 1234  ->  2 bytes 1235\n");
  EXPECT_EQ(RunDiff(before, before), kOk);
  // In the wrong byte order the lengths make no sense.
  EXPECT_THROW(RunDiff(before, write("little.bin", true)), Trouble);
}

TEST_F(ProjectTool, MapTellsWhereTheImageHasWhatFollowsAnItemWithoutData) {
  const std::string own =
      WriteProject(Item("before", 2, 0, -1, "    ITEM_ID = 4\r\n    ITEM_LENGTH = 2\r\n") +
                   Item("empty", 6, 1, -1, "    ITEM_ID = 5\r\n    ITEM_LENGTH = 0\r\n") +
                   Item("next", 4, 2, -1, "    ITEM_ID = 6\r\n    ITEM_CONTENT = 0x12345678\r\n"));
  ImageOptions options;
  EXPECT_EQ(Run([&](auto& out) { return Image(own, options, out); }), kOk);
  EXPECT_THAT(output_, HasSubstr("00000010: 12 34 56 78 \n"));
  options.map = true;
  EXPECT_EQ(Run([&](auto& out) { return Image(own, options, out); }), kOk);
  EXPECT_THAT(output_, HasSubstr("      16       4      6  next\n"));
}

TEST_F(ProjectTool, CheckNamesEveryFaultWithItsLine) {
  EXPECT_EQ(RunCheck(project_), kOk);

  const std::pair<std::string, std::string> faults[] = {
      {Item("a", 7, 0, -1) + Item("b", 4, 1, 9), "own.nvm:9: b: its parent 9 does not precede it"},
      {Item("a", 4, 3, -1), "own.nvm:2: a: its index 3 is not its position 0"},
      {Item("a", 5, 0, -1, "    ITEM_SIZE = 2\r\n") + Item("a[0]", 2, 1, 0),
       "own.nvm:2: a: 1 of its 2 elements follow it"},
      {Item(std::string(70, 'n'), 4, 0, -1), "own.nvm:3: ITEM_NAME is cut to 63 characters"},
      {Item("a", 4, 0, -1) + Item("A", 4, 1, -1), "own.nvm:2 has the same path and answers for it"},
      {Item("a", 5, 0, -1, "    ITEM_SIZE = 20000\r\n") + Item("a[0]", 4, 1, 0),
       "larger than 65536"},
      {"  BEGIN_ITEM\r\n    ITEM_NAME = lost\r\n", "own.nvm:2: the item has no END_ITEM"},
      {"#" + std::string(400, 'x') + "\r\n", "own.nvm:2: the line is cut"},
  };
  for (const auto& [items, finding] : faults) {
    EXPECT_EQ(RunCheck(WriteProject(items)), kDifferent) << finding;
    EXPECT_THAT(output_, HasSubstr(finding));
  }

  const std::string own = WriteProject(Item("a", 4, 0, -1));
  std::filesystem::remove(directory_ / "own.nvm");
  EXPECT_EQ(RunCheck(own), kDifferent);
  EXPECT_THAT(output_, HasSubstr("own.prj:2: the module "));
}

}  // namespace
}  // namespace merovane::tool
