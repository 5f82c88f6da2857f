// What a program can ask of the library besides commands. In a program of its own: the folder of
// settings and logs is chosen once a process.
#include "merovane/diagnostics.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "merovane/merovane.h"
#include "merovane_version/version.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StrEq;

nlohmann::json Settings() {
  std::string text(Merovane_Settings(nullptr, 0), '\0');
  EXPECT_EQ(Merovane_Settings(text.data(), static_cast<std::uint32_t>(text.size())), text.size());
  text.pop_back();
  return nlohmann::json::parse(text);
}

std::string ValueAndSource(const nlohmann::json& settings, const std::string& key) {
  for (const auto& row : settings["settings"]) {
    if (row["key"] == key)
      return row["value"].get<std::string>() + " " + row["source"].get<std::string>();
  }
  return {};
}

// "key=value: text" of each problem.
std::vector<std::string> Problems() {
  std::vector<std::string> lines;
  const nlohmann::json settings = Settings();
  for (const auto& row : settings["problems"]) {
    lines.push_back(row["key"].get<std::string>() + "=" + row["value"].get<std::string>() + ": " +
                    row["text"].get<std::string>());
  }
  return lines;
}

struct SettingsFolder : ::testing::Test {
  std::int32_t Choose() const { return Merovane_SetFolder(folder.Path().string().c_str()); }
  void Say(std::string_view text) const {
    folder.Write("Merovane.ini", text);
    ASSERT_EQ(Choose(), PC_ERR_SUCCESS);
  }
  TempDirectory folder;
};

TEST(Diagnostics, NameWhatNumbersStandFor) {
  EXPECT_THAT(Merovane_Version(), StrEq(kVersion));
  EXPECT_THAT(Merovane_ResultName(PC_ERR_NO_ANSWER), StrEq("PC_ERR_NO_ANSWER"));
  EXPECT_THAT(Merovane_ResultName(PC_ERR_REFUSED), StrEq("PC_ERR_REFUSED"));
  EXPECT_THAT(Merovane_ResultName(PC_ERR_NOT_SUPPORTED), StrEq("PC_ERR_NOT_SUPPORTED"));
  EXPECT_THAT(Merovane_ResultMeaning(PC_ERR_SUCCESS), StrEq("done"));
  EXPECT_THAT(Merovane_ResultAdvice(PC_ERR_SUCCESS), StrEq(""));
  for (std::int32_t code = 1; code <= PC_ERR_REFUSED; ++code) {
    EXPECT_THAT(Merovane_ResultMeaning(code), ::testing::StrNe("")) << code;
    EXPECT_THAT(Merovane_ResultAdvice(code), ::testing::EndsWith(".")) << code;
  }
  for (const std::int32_t code : {-2, 40, INT32_MIN}) {
    EXPECT_THAT(Merovane_ResultName(code), StrEq("unknown result"));
    EXPECT_THAT(Merovane_ResultMeaning(code), StrEq(""));
    EXPECT_THAT(Merovane_ResultAdvice(code), StrEq(""));
  }
  EXPECT_THAT(Merovane_OperationName(1), StrEq("BeginPhoneTest"));
  EXPECT_THAT(Merovane_OperationName(23), StrEq("ReadFlash"));
  EXPECT_THAT(Merovane_OperationName(0), StrEq("unknown operation"));
  EXPECT_THAT(Merovane_OperationName(273), StrEq("unknown operation"));
  EXPECT_THAT(Merovane_StartModeName(1), StrEq("GSM calibration"));
  EXPECT_THAT(Merovane_StartModeName(99), HasSubstr("handset's own"));
}

TEST_F(SettingsFolder, GivesValuesWithWhereTheyCameFrom) {
  Say("[Inc Recv Timeout]\r\nTimeout = -20\r\n[Endian Control]\r\nbig endian=0\r\n");
  const auto settings = Settings();
  EXPECT_EQ(settings["file"], (folder / "Merovane.ini").string());
  EXPECT_EQ(settings["found"], true);
  EXPECT_EQ(ValueAndSource(settings, "Timeout"), "-20 file");
  EXPECT_EQ(ValueAndSource(settings, "Big Endian"), "0 file");
  EXPECT_EQ(ValueAndSource(settings, "Port"), "36667 default");
  EXPECT_THAT(Problems(), IsEmpty());
  QV_SetProperty(QV_PROPERTY_BIG_ENDIAN, 0, 1);
  QV_SetProperty(QV_PROPERTY_USEFUL_LOG, 0, 1);
  EXPECT_EQ(ValueAndSource(Settings(), "Big Endian"), "1 program");
  EXPECT_EQ(ValueAndSource(Settings(), "Record Useful Log"), "1 program");

  std::filesystem::remove(folder / "Merovane.ini");
  ASSERT_EQ(Choose(), PC_ERR_SUCCESS);
  EXPECT_EQ(Settings()["found"], false);
  EXPECT_EQ(ValueAndSource(Settings(), "Record Useful Log"), "0 default");
}

TEST_F(SettingsFolder, NamesEveryProblemOfTheFile) {
  Say("[Record Comm Log]\r\nRecord Useful Log=yes\r\nRecord Useful Lgo=1\r\nRecord Useful Log=1\r\n"
      "[Recrod Comm Log]\r\nRecord All Log=1\r\n[Endian Control]\r\nBig Endian=0x\r\n"
      "[Download IMEI]\r\nAnything=1\r\n[Inc Recv Timeout]\r\nTimeout=\"12 ms\"\r\n");
  EXPECT_THAT(Problems(),
              ElementsAre("Record Useful Log=yes: It is no number, and counts as 0.",
                          HasSubstr("Record Useful Lgo=1: There is no such key"),
                          HasSubstr("Record Useful Log=1: Another value stands before it"),
                          HasSubstr("=: There is no such section"),
                          "Big Endian=0x: It is no number, and counts as 0.",
                          "Timeout=12 ms: It is no number, and counts as 12."));
}

TEST_F(SettingsFolder, TellsOfLogsAndServersThatAreNotThere) {
  folder.Write("Log", "a plain file");
  Say("[Record Comm Log]\r\nRecord All Log=1\r\n[Socket]\r\nConnect ChannelServer=1\r\nPort=1\r\n");
  EXPECT_THAT(Problems(), ElementsAre(HasSubstr("No log can be written into"),
                                      HasSubstr("No channel server can be reached at port 1")));
  std::filesystem::remove(folder / "Log");
  EXPECT_THAT(Problems(), ElementsAre(HasSubstr("No channel server")));
  EXPECT_FALSE(std::filesystem::exists(folder / "Log")) << "asking leaves nothing there";
  QV_SetProperty(QV_PROPERTY_CHANNEL_SERVER, 0, 0);
  EXPECT_THAT(Problems(), ElementsAre(HasSubstr("switched the channel server off")));
}

TEST_F(SettingsFolder, CutsALongReportToItsRoom) {
  std::string text(8, '#');
  EXPECT_GT(Merovane_Settings(text.data(), 4), 100u);
  EXPECT_EQ(text, (std::string("{\"f") + '\0' + "####"));
  Merovane_Settings(text.data(), 0);
  EXPECT_EQ(text[0], '{');
}

TEST_F(SettingsFolder, HoldsTheTraceThatTheFileAsksFor) {
  Say("[Record Comm Log]\r\nRecord Trace=2\r\n");
  EXPECT_EQ(ValueAndSource(Settings(), "Record Trace"), "2 file");
  std::uint8_t imei[8] = {};
  EXPECT_EQ(QV_ReadIMEI_MT(3, imei), PC_ERR_PORT_NOT_OPEN);
  EXPECT_EQ(QV_EndPhoneTest(), PC_ERR_SUCCESS);
  const auto trace = [&](const char* name) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "Log")) {
      if (entry.path().filename() == name) return nlohmann::json::parse(FileText(entry.path()));
    }
    return nlohmann::json();
  };
  EXPECT_EQ(trace("Com3_Trace.jsonl")["failure"]["cause"], MEROVANE_CAUSE_NO_SESSION);
  EXPECT_EQ(trace("Com0_Trace.jsonl")["function"], "QV_EndPhoneTest");
  ASSERT_EQ(Merovane_SetTrace(MEROVANE_TRACE_OFF), PC_ERR_SUCCESS);
  EXPECT_EQ(ValueAndSource(Settings(), "Record Trace"), "0 program");
}

// The last one: it begins a session.
TEST_F(SettingsFolder, StaysOnceASessionHasBegun) {
  EXPECT_EQ(Merovane_SetFolder(nullptr), PC_ERR_INVALID_PARAM);
  EXPECT_EQ(Merovane_SetFolder((folder / "missing").string().c_str()), PC_ERR_INVALID_PARAM);
  Say("[Record Comm Log]\r\nRecord Useful Log=1\r\n");
  EXPECT_EQ(QV_BeginPhoneTest(200, 9600), PC_ERR_CANNOT_OPEN_PORT);
  std::size_t logs = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "Log")) {
    logs += entry.path().filename() == "Com200_UsefulLog.txt" ? 1 : 0;
  }
  EXPECT_EQ(logs, 1u);
  EXPECT_EQ(Choose(), PC_ERR_PORT_ALREADY_OPENED);
}

}  // namespace
}  // namespace merovane::test
