#include "platform/message_queue.h"

#include <gtest/gtest.h>

#include <thread>
#include <tuple>

#include "platform/clock.h"
#include "platform/event.h"

namespace merovane::platform {
namespace {

constexpr std::uint32_t kOurs = 1124;

TEST(MessageQueue, KeepsTheOrderOfWhatWasPostedAndIsWaitedForUpToTheLimit) {
  CreateMessageQueue();
  const Message posted[] = {{kOurs, 1, -1}, {kQuitMessage}, {2025, UINTPTR_MAX, INTPTR_MIN}};
  for (const Message& each : posted) {
    EXPECT_TRUE(PostMessageToThread(CurrentThreadId(), each.id, each.first, each.second));
    CreateMessageQueue();  // takes nothing from a queue that is there
  }
  Message message;
  for (const Message& each : posted) {
    ASSERT_TRUE(TakeMessage(message, UINT32_MAX));
    EXPECT_EQ(std::tie(message.id, message.first, message.second, message.window),
              std::tie(each.id, each.first, each.second, each.window));
  }
  DispatchForeignMessage(message);
  EXPECT_FALSE(TakeMessage(message, 0));
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
