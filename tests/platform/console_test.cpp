#include "platform/console.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace merovane::platform {
namespace {

TEST(MessageBox, GoesToTheReplacementWhileThereIsOne) {
  std::vector<std::pair<std::string, std::string>> shown;
  SetMessageBox([&](const std::string& text, const std::string& caption) {
    shown.emplace_back(text, caption);
    // A box may itself lead to another, or to the end of the replacement.
    if (shown.size() == 1) ShowMessageBox("", caption);
    SetMessageBox(nullptr);
  });
  ShowMessageBox("Can't open file a.txt!", "Error");
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0], std::pair(std::string("Can't open file a.txt!"), std::string("Error")));
  EXPECT_EQ(shown[1].first, "");
}

}  // namespace
}  // namespace merovane::platform
