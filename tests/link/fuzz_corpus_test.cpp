#include <gtest/gtest.h>

#include <filesystem>

#include "link/link_input.h"
#include "support/temp_directory.h"

namespace merovane::test {
namespace {

TEST(LinkFuzzCorpus, RunsWithoutAFault) {
  int inputs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(LINK_CORPUS)) {
    const std::string text = FileText(entry.path());
    fuzz::RunInput(Bytes(text.begin(), text.end()));
    ++inputs;
  }
  EXPECT_GE(inputs, 9);
}

}  // namespace
}  // namespace merovane::test
