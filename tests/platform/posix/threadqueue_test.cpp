#include "threadqueue/threadqueue.h"

#include <gtest/gtest.h>

#include "platform/thread.h"

namespace {

using merovane::platform::Thread;

constexpr std::uint32_t kNoLimit = UINT32_MAX;
constexpr std::uint32_t kLongMs = 60'000;

// The platform's tests show what every queue does.
struct ThreadQueue : testing::Test {
  ThreadQueue() {
    while (threadqueue_take(&message, 0)) {
    }
  }

  THREADQUEUE_MESSAGE message{};
  const std::uint32_t self = threadqueue_current_thread();
};

TEST_F(ThreadQueue, HoldsTenThousandMessages) {
  for (std::uint32_t i = 0; i < 10000; ++i) ASSERT_EQ(threadqueue_post(self, i, 0, 0), 1);
  EXPECT_EQ(threadqueue_post(self, 10000, 0, 0), 0);
  for (std::uint32_t i = 0; i < 10000; ++i) {
    ASSERT_EQ(threadqueue_take(&message, 0), 1);
    ASSERT_EQ(message.id, i);
  }
  EXPECT_EQ(threadqueue_take(&message, 0), 0);
}

TEST_F(ThreadQueue, ARangeIsTakenOutOfTurn) {
  for (const std::uint32_t id : {1124U, 2025U, 18U, 2025U}) threadqueue_post(self, id, 0, 0);
  EXPECT_EQ(threadqueue_take_range(&message, 2000, 2024), 0);
  ASSERT_EQ(threadqueue_take_range(&message, 2025, 2025), 1);
  EXPECT_EQ(message.id, 2025U);
  for (const std::uint32_t id : {1124U, 18U, 2025U}) {
    ASSERT_EQ(threadqueue_take(&message, 0), 1);
    EXPECT_EQ(message.id, id);
  }
  EXPECT_EQ(threadqueue_take(&message, 20), 0);
}

TEST_F(ThreadQueue, PostsRaceWithTheEndOfTheirThread) {
  for (int round = 0; round < 50; ++round) {
    Thread brief;
    ASSERT_TRUE(brief.Start([] {
      THREADQUEUE_MESSAGE first{};
      threadqueue_take(&first, kNoLimit);
    }));
    while (threadqueue_post(brief.Id(), 1, 0, 0)) {
    }
    EXPECT_TRUE(brief.WaitMs(kLongMs));
  }
}

}  // namespace
