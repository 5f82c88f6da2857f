#include "link/log_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "platform/clock.h"
#include "support/bytes.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

struct LogFileTest : ::testing::Test {
  LogFileTest() {
    Set(LogOption::Directory, LogDirectory{LogDirectory::Kind::Given, directory.Path().string()});
  }
  void Set(LogOption option, LogOptionValue value) {
    EXPECT_TRUE(log.SetOption(option, std::move(value)));
  }
  void Set(LogOption option, unsigned value) { Set(option, LogOptionValue(std::uint32_t{value})); }
  void OpenPlain() {
    Set(LogOption::TimeStamps, 0);
    ASSERT_TRUE(log.Open("plain.txt", log_flags::kText));
  }
  std::string Text(std::string_view name = "plain.txt") { return FileText(directory / name); }
  std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory.Path())) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  TempDirectory directory;
  LogFile log;
};

TEST_F(LogFileTest, StampsLinesAndDumpHeadsToTheMillisecond) {
  ASSERT_TRUE(log.Open("stamped.txt", 0));
  log.Text("AgcStart:");
  log.Dump(Hex("7E 41"), LogDirection::Sent);
  const platform::CalendarTime now = platform::LocalTime();
  const std::string text = Text("stamped.txt");
  const std::regex expected(
      R"(\[\d{4}-\d\d-\d\d \d\d:\d\d:\d\d:\d{3}\] AgcStart:\r\n)"
      R"(\[\d{4}-\d\d-\d\d \d\d:\d\d:\d\d:\d{3}\] --> 2\(0x00000002\) Bytes\r\n)"
      R"(00000000h: 7E 41 {43}; ~A\r\n)");
  EXPECT_TRUE(std::regex_match(text, expected)) << text;
  EXPECT_EQ(std::stoi(text.substr(1, 4)), now.year);
}

TEST_F(LogFileTest, DumpsSixteenBytesALineAndPadsTheLast) {
  OpenPlain();
  log.Dump(Hex("00 1F 20 7E 7F 80 FF 41 42 43 44 45 46 47 48 49 61 62 63 64"),
           LogDirection::Received);
  EXPECT_EQ(Text(),
            "<-- 20(0x00000014) Bytes\r\n"
            "00000000h: 00 1F 20 7E 7F 80 FF 41 42 43 44 45 46 47 48 49 ; .. ~...ABCDEFGHI\r\n"
            "00000010h: 61 62 63 64                                     ; abcd\r\n");
}

TEST_F(LogFileTest, MarksDirectionsAndParts) {
  OpenPlain();
  Set(LogOption::Offsets, 0);
  Set(LogOption::CharacterColumn, 0);
  Set(LogOption::BytesPerLine, 2);
  log.Dump(Hex("01 02 03"), LogDirection::Third, 300);
  log.Dump({}, LogDirection::Other);
  EXPECT_EQ(Text(),
            "<<- 3(0x00000003)/300(0x0000012c) Bytes\r\n01 02 ;\r\n03    ;\r\n"
            "--- 0(0x00000000) Bytes\r\n");
}

TEST_F(LogFileTest, TakesBytesPerLineFromOneToSixteen) {
  for (const auto& [asked, given] :
       {std::pair{0u, 16u}, {1u, 1u}, {16u, 16u}, {17u, 16u}, {40u, 16u}}) {
    Set(LogOption::BytesPerLine, asked);
    EXPECT_EQ(std::get<std::uint32_t>(log.Option(LogOption::BytesPerLine)), given);
  }
}

TEST_F(LogFileTest, ReadsOptionsBackAndRefusesWrongKinds) {
  const std::pair<LogOption, LogOptionValue> values[] = {{LogOption::BaseName, std::string("name")},
                                                         {LogOption::TimeStamps, 0u},
                                                         {LogOption::Offsets, 0u},
                                                         {LogOption::CharacterColumn, 0u},
                                                         {LogOption::Extension, std::string(".d")},
                                                         {LogOption::SizeLimitMb, 3u}};
  for (const auto& [option, value] : values) {
    const bool isText = std::holds_alternative<std::string>(value);
    EXPECT_FALSE(
        log.SetOption(option, isText ? LogOptionValue(1u) : LogOptionValue(std::string())));
    EXPECT_FALSE(log.SetOption(option, LogDirectory{}));
    Set(option, value);
    EXPECT_EQ(log.Option(option), value) << static_cast<int>(option);
  }
  EXPECT_FALSE(log.SetOption(LogOption::Directory, 1u));
  Set(LogOption::Extension, std::string(300, 'x'));
  EXPECT_EQ(std::get<std::string>(log.Option(LogOption::Extension)).size(), 259u);
}

TEST_F(LogFileTest, NamesFilesByNameFlagsAndKind) {
  const auto opened = [&](std::string_view name, std::uint32_t flags) {
    EXPECT_TRUE(log.Open(name, flags));
    log.Close();
    std::vector<std::string> files = Files();
    for (const std::string& file : files) std::filesystem::remove(directory / file);
    return files;
  };
  using ::testing::ElementsAre;
  EXPECT_THAT(opened("Com3_AllLog.txt", 0x7000), ElementsAre("Com3_AllLog.txt"));
  EXPECT_THAT(opened("sub\\dir/a.b.c", 0), ElementsAre("a.b.c"));
  EXPECT_THAT(opened("bare", log_flags::kText), ElementsAre("bare.log"));
  EXPECT_THAT(opened("bare", 0x8300), ElementsAre("bare_Rd.bin", "bare_Wt.bin"));
  EXPECT_THAT(opened("a.dat", 0x8100 | log_flags::kText), ElementsAre("a.dat", "a_Rd.dat"));
  const auto ofDay = opened("day.txt", log_flags::kDateInName);
  ASSERT_EQ(ofDay.size(), 1u);
  EXPECT_TRUE(std::regex_match(ofDay[0], std::regex(R"(day_\d{4}(_\d\d){2}\.txt)"))) << ofDay[0];
  const auto dated = opened("t.txt", log_flags::kDateAndTimeInName | log_flags::kDateInName);
  ASSERT_EQ(dated.size(), 1u);
  EXPECT_TRUE(std::regex_match(dated[0], std::regex(R"(t(_\d{4})(_\d\d){5}_\d{3}\.txt)")))
      << dated[0];
  Set(LogOption::Extension, std::string(".raw"));
  EXPECT_THAT(opened("a.dat", 0x8200), ElementsAre("a_Wt.raw"));
  EXPECT_THAT(opened("a.txt", log_flags::kText), ElementsAre("a.txt"));
  Set(LogOption::BaseName, std::string("own.txt"));
  EXPECT_THAT(opened("", 0), ElementsAre("own.txt"));
}

TEST_F(LogFileTest, StandsWhereAnAbsoluteNameSays) {
  ASSERT_TRUE(log.Open((directory.Path() / "new" / "deep.txt").string(), 0));
  log.Raw("x");
  EXPECT_EQ(Text("new/deep.txt"), "x");
}

TEST_F(LogFileTest, WritesDataFilesByDirection) {
  ASSERT_TRUE(log.Open("d", 0x8300));
  log.Dump(Hex("01 02"), LogDirection::Received);
  log.Dump(Hex("03"), LogDirection::Sent);
  log.Dump(Hex("04"), LogDirection::Other);
  log.Text("nowhere");
  EXPECT_EQ(Text("d_Rd.bin"), "\x01\x02");
  EXPECT_EQ(Text("d_Wt.bin"), "\x03");
}

TEST_F(LogFileTest, GoesOnAtTheEndOfWhatIsThere) {
  OpenPlain();
  log.Text("one");
  log.Close();
  log.Text("lost");
  OpenPlain();
  log.Text("two");
  EXPECT_EQ(Text(), "one\r\ntwo\r\n");
}

TEST_F(LogFileTest, StartsANewFileWhenOneHasPassedItsLimit) {
  OpenPlain();
  Set(LogOption::SizeLimitMb, 1);
  const std::string half(512 * 1024 - 2, 'a');
  log.Text(half);
  log.Text(half);
  log.Text("passes the limit");
  log.Text("first in the next");
  EXPECT_EQ(Text().size(), 1024 * 1024 + 18u);
  EXPECT_EQ(Text("plain_1.txt"), "first in the next\r\n");
  log.Text(std::string(std::size_t{1024} * 1024, 'b'));
  log.Text("third");
  EXPECT_EQ(Text("plain_2.txt"), "third\r\n");
}

TEST_F(LogFileTest, ThatCannotBeOpenedTakesLinesInSilence) {
  directory.Write("file", "x");
  EXPECT_FALSE(log.Open((directory / "file").string() + "/log.txt", 0));
  EXPECT_FALSE(log.IsOpen());
  log.Text("nowhere");
  log.Dump(Hex("01"), LogDirection::Sent);
}

}  // namespace
}  // namespace merovane::test
