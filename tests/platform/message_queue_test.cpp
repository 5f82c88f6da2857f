#include "platform/message_queue.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/clock.h"
#include "platform/event.h"

namespace merovane::platform {
namespace {

constexpr std::uint32_t kOurs = 1124;

TEST(MessageQueue, KeepsTheOrderOfWhatWasPosted) {
  CreateMessageQueue();
  const std::uint32_t self = CurrentThreadId();
  EXPECT_TRUE(PostMessageToThread(self, kOurs, 1, -1));
  CreateMessageQueue();  // takes nothing from a queue that is there
  EXPECT_TRUE(PostMessageToThread(self, kQuitMessage, 0, 0));
  EXPECT_TRUE(PostMessageToThread(self, 2025, UINTPTR_MAX, INTPTR_MIN));
  Message message;
  ASSERT_TRUE(TakeMessage(message, UINT32_MAX));
  EXPECT_EQ(message.id, kOurs);
  EXPECT_EQ(message.first, 1U);
  EXPECT_EQ(message.second, -1);
  ASSERT_TRUE(TakeMessage(message, 0));
  EXPECT_EQ(message.id, kQuitMessage);
  ASSERT_TRUE(TakeMessage(message, 0));
  EXPECT_EQ(message.first, UINTPTR_MAX);
  EXPECT_EQ(message.second, INTPTR_MIN);
  EXPECT_EQ(message.window, nullptr);
  DispatchForeignMessage(message);
  EXPECT_FALSE(TakeMessage(message, 0));
}

TEST(MessageQueue, IsWaitedForNoLongerThanTheLimit) {
  Message message;
  const Deadline deadline(SystemClock(), 60);
  EXPECT_FALSE(TakeMessage(message, 60));
  EXPECT_GE(deadline.ElapsedMs(), 60U - 16U);  // ticks may be coarse
}

TEST(MessageQueue, WakesTheThreadThatWaits) {
  Event asked;
  Event waiting;
  std::uint32_t id = 0;
  std::uint32_t taken = 0;
  std::thread taker([&] {
    id = CurrentThreadId();
    asked.Set();
    waiting.WaitMs(UINT32_MAX);
    Message message;
    CreateMessageQueue();
    asked.Set();
    if (TakeMessage(message, UINT32_MAX)) taken = message.id;
  });
  asked.WaitMs(UINT32_MAX);
  const MessageReceiver receiver(id);
  EXPECT_FALSE(receiver.Post(kOurs, 0, 0)) << "before it has a queue";
  EXPECT_FALSE(receiver.IsGone());
  asked.Reset();
  waiting.Set();
  asked.WaitMs(UINT32_MAX);
  EXPECT_TRUE(receiver.Post(kOurs, 0, 0));
  taker.join();
  EXPECT_EQ(taken, kOurs);
  EXPECT_FALSE(receiver.Post(kOurs, 0, 0)) << "after its thread has ended";
  // The system may still be busy with its end.
  for (int i = 0; !receiver.IsGone() && i < 10'000; ++i) SystemClock().SleepMs(1);
  EXPECT_TRUE(receiver.IsGone());
  EXPECT_FALSE(PostMessageToThread(0, kOurs, 0, 0));
}

}  // namespace
}  // namespace merovane::platform
