// The tools as a shell runs them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace merovane::tool
