#include "platform/name_claim.h"

#include <gtest/gtest.h>

#include "platform/message_queue.h"

namespace merovane::platform {
namespace {

TEST(NameClaim, KeepsItsNameFromOthersForAsLongAsItLasts) {
  // No other run of this test has it.
  const std::string name = "merovane-test-" + std::to_string(CurrentThreadId());
  auto first = ClaimName(name);
  EXPECT_TRUE(first);
  EXPECT_FALSE(ClaimName(name));
  EXPECT_TRUE(ClaimName(name + "0"));
  first.reset();
  EXPECT_TRUE(ClaimName(name));
}

}  // namespace
}  // namespace merovane::platform
