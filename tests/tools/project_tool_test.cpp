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

  // The same value again does not let the file grow.
  const auto size = [&] { return std::filesystem::file_size(copy / "calibration_param.nvm"); };
  const auto before = size();
  EXPECT_EQ(Run([&](auto& out) { return Set(changed, path, "0x77", out); }), kOk);
  EXPECT_EQ(size(), before);

  for (const char* const value : {"two words", "zz", "0x100000000", "-0x80000001"}) {
    EXPECT_THROW(Set(changed, path, value, std::cout), Trouble) << value;
  }
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

TEST_F(ProjectTool, PutsDspCodeAheadOfTheItems) {
  const std::string own = WriteProject(
      Item("a", 2, 0, -1, "    ITEM_ID = 1\r\n    ITEM_LENGTH = 2\r\n    ITEM_CONTENT = 258\r\n"));
  ImageOptions options;
  options.dspCode = (directory_ / "dsp").string();
  EXPECT_THROW(Image(own, options, std::cout), Trouble);  // no target
  options.output = (directory_ / "nv.bin").string();
  EXPECT_THROW(Image(own, options, std::cout), Trouble);  // no DSP code
  std::ofstream(*options.dspCode, std::ios::binary) << "ABCD";
  EXPECT_EQ(Run([&](auto& out) { return Image(own, options, out); }), kOk);
  EXPECT_THAT(output_, HasSubstr("nv.bin: 49168 bytes"));
  std::ifstream file(*options.output, std::ios::binary);
  const std::string image((std::istreambuf_iterator<char>(file)), {});
  EXPECT_EQ(image.substr(4, 8), std::string("\0\4\xC0\0BADC", 8));
  EXPECT_EQ(image.substr(49160), std::string("\0\1\0\2\1\2\0\0", 8));
}

TEST_F(ProjectTool, MakesNewProjectsAndSavesThemWithAbsolutePaths) {
  const std::string fresh = (directory_ / "fresh.prj").string();
  EXPECT_EQ(Run([&](auto& out) { return New(fresh, {}, out); }), kOk);
  EXPECT_THROW(New(fresh, {}, std::cout), Trouble);
  EXPECT_EQ(RunCheck(fresh), kDifferent);
  EXPECT_THAT(output_, HasSubstr("fresh.prj: names no module"));
  std::ofstream(fresh, std::ios::app) << "MODULE = own.nvm\nTARGET = nv.bin\n";
  WriteProject(Item("a", 4, 0, -1));

  EXPECT_EQ(Run([&](auto& out) { return Save(fresh, out); }), kOk);
  const auto moved = directory_ / "moved";
  std::filesystem::create_directory(moved);
  std::filesystem::copy_file(fresh, moved / "fresh.prj");
  EXPECT_EQ(RunCheck((moved / "fresh.prj").string()), kOk) << output_;

  const auto blank = directory_ / "a blank";
  std::filesystem::create_directory(blank);
  for (const char* const name : {"own.prj", "own.nvm"}) {
    std::filesystem::copy_file(directory_ / name, blank / name);
  }
  EXPECT_THROW(Save((blank / "own.prj").string(), std::cout), Trouble);
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
      {Item("a", 2, 0, -1, "    ITEM_CONTENT = 0x1FFFF\r\n"),
       "own.nvm:2: a: 0x1FFFF is not a SHORT"},
      {Item("a", 1, 0, -1, "    ITEM_CONTENT = -129\r\n"), "own.nvm:2: a: -129 is not a CHAR"},
      {Item("a", 7, 0, -1), "own.nvm:2: a: it has no data, so that the image has no record of it"},
      {"    ITEM_NAME\r\n", "own.nvm:2: ITEM_NAME has no \"=\""},
      {"  BEGIN_ITEM\r\n    ITEM_NAME = lost\r\n", "own.nvm:2: the item has no END_ITEM"},
      {"#" + std::string(400, 'x') + "\r\n", "own.nvm:2: the line is cut"},
  };
  for (const auto& [items, finding] : faults) {
    EXPECT_EQ(RunCheck(WriteProject(items)), kDifferent) << finding;
    EXPECT_THAT(output_, HasSubstr(finding));
  }

  const std::string own = WriteProject(Item("a", 1, 0, -1, "    ITEM_CONTENT = 255\r\n") +
                                       Item("b", 2, 1, -1, "    ITEM_CONTENT = -32768\r\n") +
                                       Item("c", 4, 2, -1, "    ITEM_CONTENT = 0XFFFFFFFF\r\n") +
                                       Item("d", 1, 3, -1, "    ITEM_CONTENT = 10X\r\n") +
                                       Item("e", 6, 4, -1, "    ITEM_CONTENT = text\r\n"));
  EXPECT_EQ(RunCheck(own), kOk) << output_;
  std::filesystem::remove(directory_ / "own.nvm");
  EXPECT_EQ(RunCheck(own), kDifferent);
  EXPECT_THAT(output_, HasSubstr("own.prj:2: the module "));
}

}  // namespace
}  // namespace merovane::tool
