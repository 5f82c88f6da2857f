// The tools as a shell runs them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

#include "merovane_version/version.h"
#include "support/child_program.h"
#include "support/exit_codes.h"

namespace merovane::tool {
namespace {

using ::testing::HasSubstr;
using ::testing::Pair;

TEST(Programs, NameTheWrongWordAndEndAlike) {
  const auto run = [](std::vector<std::string> words) {
    words[0] = std::string(MEROVANE_TOOLS) + "/" + words[0];
    merovane::test::ChildProgram program(words);
    const std::string said = program.Line();
    return std::pair(program.Wait(), said);
  };
  EXPECT_THAT(run({"merovane", "bogus"}), Pair(kTrouble, HasSubstr("merovane: \"bogus\"")));
  EXPECT_THAT(run({"merovane", "project", "gett"}), Pair(kTrouble, HasSubstr("\"gett\"")));
  EXPECT_THAT(run({"merovane", "project", "get"}),
              Pair(kTrouble, HasSubstr("project is required")));
  EXPECT_THAT(run({"merovane", "project", "check", "none.prj"}),
              Pair(kTrouble, "merovane: none.prj: cannot be read"));
  EXPECT_THAT(run({"merovane-project-generator", "d", "--bogus"}),
              Pair(kTrouble, HasSubstr("\"--bogus\"")));
  EXPECT_THAT(run({"merovane", "--version"}), Pair(kOk, kVersion));
}

TEST(Programs, ListenShowsTheFramesOfItsKind) {
  const std::string device = testing::TempDir() + "merovane-listen." + std::to_string(getpid());
  const std::string tools = MEROVANE_TOOLS;
  test::ChildProgram handset(
      {tools + "/merovane-handset", "--link", device, "--mode", "3", "--verbose"});
  ASSERT_EQ(handset.Line("ready "), "ready " + device);
  setenv("CASSORIND_COM57", device.c_str(), 1);
  test::ChildProgram listen(
      {tools + "/merovane", "listen", "57", "--type", "35", "--subtype", "1", "--seconds", "1"});
  ASSERT_EQ(listen.Line(), "port 57: listening");
  // What it sends before it has noticed the station is lost.
  ASSERT_NE(handset.Line("station connected"), "");
  handset.Type("frame 35 0 0a\nframe 35 1 0a 0b\n");
  EXPECT_EQ(listen.Line(), "35/1  2 bytes  0a 0b");
}

}  // namespace
}  // namespace merovane::tool
