#include "platform/thread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>

#include "platform/message_queue.h"

namespace merovane::platform {
namespace {

constexpr std::uint32_t kLongMs = 60'000;

TEST(Thread, TakesMessagesFromTheMomentItHasStarted) {
  for (int i = 0; i < 50; ++i) {
    std::uintptr_t sum = 0;
    Thread thread;
    ASSERT_TRUE(thread.Start([&sum] {
      Message message;
      while (TakeMessage(message, UINT32_MAX) && message.id != kQuitMessage) sum += message.first;
    }));
    EXPECT_TRUE(PostMessageToThread(thread.Id(), 1124, 40, 0));
    EXPECT_TRUE(PostMessageToThread(thread.Id(), 1124, 2, 0));
    EXPECT_TRUE(PostMessageToThread(thread.Id(), kQuitMessage, 0, 0));
    ASSERT_TRUE(thread.WaitMs(kLongMs));
    EXPECT_EQ(sum, 42U);
  }
}

TEST(Thread, IsWaitedForAndStartedAgain) {
  Thread thread;
  EXPECT_FALSE(thread.Running());
  EXPECT_TRUE(thread.WaitMs(0));
  EXPECT_EQ(thread.Id(), 0U);

  for (int round = 0; round < 2; ++round) {
    Event stop;
    ASSERT_TRUE(thread.Start([&stop] { stop.WaitMs(UINT32_MAX); }));
    EXPECT_TRUE(thread.Running());
    EXPECT_NE(thread.Id(), CurrentThreadId());
    EXPECT_FALSE(thread.WaitMs(1));
    EXPECT_FALSE(thread.Start([] {})) << "a second body beside the first";
    stop.Set();
    EXPECT_TRUE(thread.WaitMs(kLongMs));
    EXPECT_FALSE(thread.Running());
    EXPECT_EQ(thread.Id(), 0U);
  }
}

TEST(Thread, EndsWhenItsBodyThrowsAndFreesWhatTheBodyHeld) {
  auto held = std::make_shared<int>(1);
  Thread thread;
  ASSERT_TRUE(thread.Start([held] { throw std::runtime_error("lost"); }));
  EXPECT_TRUE(thread.WaitMs(kLongMs));
  EXPECT_EQ(held.use_count(), 1);
}

TEST(Thread, RunsOnAfterItWasGivenUp) {
  for (const bool explicitly : {true, false}) {
    struct Shared {
      Event stop, ended;
    };
    const auto shared = std::make_shared<Shared>();
    {
      Thread thread;
      ASSERT_TRUE(thread.Start([shared] {
        shared->stop.WaitMs(UINT32_MAX);
        shared->ended.Set();
      }));
      if (explicitly) thread.Abandon();
      EXPECT_EQ(thread.Running(), !explicitly);
      EXPECT_EQ(thread.WaitMs(0), explicitly);
    }
    EXPECT_FALSE(shared->ended.IsSet());
    shared->stop.Set();
    EXPECT_TRUE(shared->ended.WaitMs(kLongMs));
    while (shared.use_count() > 1) std::this_thread::yield();
  }
}

}  // namespace
}  // namespace merovane::platform
