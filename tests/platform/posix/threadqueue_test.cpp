#include "threadqueue/threadqueue.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

namespace {

constexpr std::uint32_t kNoLimit = UINT32_MAX;

// A thread with a queue that runs one task. The platform's tests show what every queue does.
class QueueThread {
 public:
  template <typename Task>
  explicit QueueThread(Task task) {
    std::promise<std::uint32_t> id;
    auto started = id.get_future();
    thread_ = std::thread([&id, task] {
      THREADQUEUE_MESSAGE none{};
      EXPECT_EQ(threadqueue_take(&none, 0), 0);
      id.set_value(threadqueue_current_thread());
      task();
    });
    id_ = started.get();
  }
  ~QueueThread() { thread_.join(); }
  std::uint32_t Id() const { return id_; }

 private:
  std::thread thread_;
  std::uint32_t id_ = 0;
};

TEST(ThreadQueue, HoldsTenThousandMessages) {
  std::promise<void> drain;
  QueueThread receiver([&drain] {
    drain.get_future().wait();
    THREADQUEUE_MESSAGE message{};
    for (std::uint32_t i = 0; i < 10000; ++i) {
      ASSERT_EQ(threadqueue_take(&message, 0), 1);
      ASSERT_EQ(message.id, i);
    }
    EXPECT_EQ(threadqueue_take(&message, 0), 0);
  });
  for (std::uint32_t i = 0; i < 10000; ++i) ASSERT_EQ(threadqueue_post(receiver.Id(), i, 0, 0), 1);
  EXPECT_EQ(threadqueue_post(receiver.Id(), 10000, 0, 0), 0);
  drain.set_value();
}

TEST(ThreadQueue, ARangeIsTakenOutOfTurn) {
  THREADQUEUE_MESSAGE message{};
  while (threadqueue_take(&message, 0)) {
  }
  const std::uint32_t self = threadqueue_current_thread();
  for (const std::uint32_t id : {1124u, 2025u, 18u, 2025u}) {
    ASSERT_EQ(threadqueue_post(self, id, 0, 0), 1);
  }
  EXPECT_EQ(threadqueue_take_range(&message, 2000, 2024), 0);
  ASSERT_EQ(threadqueue_take_range(&message, 2025, 2025), 1);
  EXPECT_EQ(message.id, 2025u);
  for (const std::uint32_t id : {1124u, 18u, 2025u}) {
    ASSERT_EQ(threadqueue_take(&message, 0), 1);
    EXPECT_EQ(message.id, id);
  }
  EXPECT_EQ(threadqueue_take(&message, 20), 0);
}

// Each hop waits for the other's post, so a post that woke nobody would hang.
TEST(ThreadQueue, APostWakesAWaitingTake) {
  constexpr int kRounds = 2000;
  THREADQUEUE_MESSAGE message{};
  while (threadqueue_take(&message, 0)) {
  }
  const std::uint32_t self = threadqueue_current_thread();
  QueueThread echo([self] {
    THREADQUEUE_MESSAGE received{};
    for (int i = 0; i < kRounds; ++i) {
      ASSERT_EQ(threadqueue_take(&received, kNoLimit), 1);
      ASSERT_EQ(threadqueue_post(self, received.id + 1, received.first, received.second), 1);
    }
  });
  for (std::uint32_t i = 0; i < kRounds; ++i) {
    ASSERT_EQ(threadqueue_post(echo.Id(), 2 * i, i, 0), 1);
    ASSERT_EQ(threadqueue_take(&message, kNoLimit), 1);
    ASSERT_EQ(message.id, 2 * i + 1);
    ASSERT_EQ(message.first, i);
  }
}

TEST(ThreadQueue, PostsRaceWithTheEndOfTheirThread) {
  for (int round = 0; round < 50; ++round) {
    QueueThread brief([] {
      THREADQUEUE_MESSAGE message{};
      threadqueue_take(&message, kNoLimit);
    });
    while (threadqueue_post(brief.Id(), 1, 0, 0)) {
    }
  }
}

}  // namespace
