#include "platform/name_claim.h"

#include <gtest/gtest.h>

#include "platform/message_queue.h"

namespace merovane::platform {
namespace {

TEST(NameClaim, KeepsItsNameFromOthersForAsLongAsItLasts) {
  // No other run of this test has it.
  const std::string name = "merovane-test-" + std::to_string(CurrentThreadId());
  auto first = ClaimName(name + "a");
  EXPECT_TRUE(first);
  EXPECT_FALSE(ClaimName(name + "a"));
  EXPECT_TRUE(ClaimName(name + "b"));
  first.reset();
  EXPECT_TRUE(ClaimName(name + "a"));
}

}  // namespace
}  // namespace merovane::platform
