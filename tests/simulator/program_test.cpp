#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/child_program.h"
#include "support/wire_station.h"

namespace {

using handset::Frame;
using merovane::test::ChildProgram;
using merovane::test::WireStation;
using testing::HasSubstr;
using testing::StartsWith;

struct Program : ChildProgram {
  explicit Program(std::vector<std::string> arguments)
      : ChildProgram([&] {
          arguments.insert(arguments.begin(), HANDSET_PROGRAM);
          return arguments;
        }()) {}
  std::string Address() {
    const std::string line = Line("ready ");
    EXPECT_THAT(line, StartsWith("ready "));
    return line.substr(line.find(' ') + 1);
  }
  std::string Say(const std::string& line) {
    Type(line + "\n");
    return Line();
  }
};

TEST(HandsetProgram, ServesAndTakesCommandsWhileItRuns) {
  Program program({"--tcp", "0", "--mode", "3", "--fault", "drop=next:1"});
  const std::string address = program.Address();
  EXPECT_THAT(address, StartsWith("127.0.0.1:"));
  WireStation line(address);
  line.Send(28, 0);
  EXPECT_EQ(line.Ask(28, 1).value().subtype, 1) << "the first answer was lost";
  EXPECT_EQ(program.Say("assert 2"), "ok assert");
  EXPECT_EQ(line.Receive().value().type, 0xFF);
  EXPECT_EQ(program.Say("frame 35 0 0a 0b"), "ok frame");
  EXPECT_EQ(line.Receive(), (Frame{35, 0, {10, 11}}));
  for (const std::string wrong : {"assert 3", "fault nonsense", "dance"}) {
    EXPECT_THAT(program.Say(wrong), StartsWith("error " + wrong.substr(0, wrong.find(' '))));
  }
  EXPECT_EQ(program.Say("fault refuse=1"), "ok fault");
  EXPECT_EQ(line.Ask(28, 0), (Frame{28, 2, {}}));
  program.Say("status");
  EXPECT_EQ(program.Line("ok"), "ok status");
  program.Say("quit");
  EXPECT_EQ(program.Wait(), 0);
}

TEST(HandsetProgram, ServesWithoutAConsoleUntilASignalEndsIt) {
  const std::string link = testing::TempDir() + "program-link." + std::to_string(getpid());
  Program program({"--link", link, "--verbose", "--little-endian", "--mode", "1"});
  EXPECT_EQ(program.Address(), link);
  program.CloseInput();
  WireStation line(link, false);
  EXPECT_TRUE(line.Ask(28, 0));
  EXPECT_THAT(program.Line("station connected"), StartsWith(" "));
  EXPECT_THAT(program.Line(), HasSubstr("-> 28/0"));
  EXPECT_THAT(program.Line(), HasSubstr("<- 28/0  00 00 00 01"));
  EXPECT_EQ(program.Kill(SIGTERM), 0);
  EXPECT_FALSE(std::filesystem::exists(link));
}

TEST(HandsetProgram, SaysWhatIsWrongAndFails) {
  struct Case {
    std::vector<std::string> arguments;
    int exitCode;
    const char* words;
  };
  for (const Case& each :
       {Case{{"--serial", "/dev/no-such-device"}, 1, "cannot open /dev/no-such-device"},
        {{"--tcp", "host:x"}, 2, "[host:]port"},
        {{"--fault", "bogus=1"}, 2, "drop, duplicate, corrupt[,bytes:N]"},
        {{"--tcp", "0", "--link", "/tmp/x"}, 2, "--link"},
        {{"--state", HANDSET_PROGRAM}, 1, "not a state file"},
        {{"--imei", "4901542032375"}, 2, "15 digits"},
        {{"--mode", "256"}, 2, "--mode"},
        {{"--version"}, 0, "."}}) {
    Program program(each.arguments);
    EXPECT_NE(program.Line(each.words), "") << each.words;
    EXPECT_EQ(program.Wait(), each.exitCode) << each.words;
  }
}

}  // namespace
