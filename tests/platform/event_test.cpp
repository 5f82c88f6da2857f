#include "platform/event.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "platform/system.h"

namespace merovane::platform {
namespace {

using test::OwnedEvent;

TEST(Event, StaysSetForEveryWaiterUntilItIsReset) {
  Event event;
  EXPECT_FALSE(event.IsSet());
  EXPECT_FALSE(event.WaitMs(5));
  event.Set();
  EXPECT_TRUE(event.IsSet());
  EXPECT_TRUE(event.WaitMs(UINT32_MAX));
  EXPECT_TRUE(event.WaitMs(0));
  event.Reset();
  EXPECT_FALSE(event.IsSet());
  EXPECT_FALSE(event.WaitMs(0));
}

TEST(Event, WakesAllThreadsThatWait) {
  Event event;
  std::atomic<int> woken{0};
  std::vector<std::thread> waiters;
  waiters.reserve(4);
  for (int i = 0; i < 4; ++i) {
    waiters.emplace_back([&, limitMs = i % 2 ? UINT32_MAX : 60'000U] {
      if (event.WaitMs(limitMs)) ++woken;
    });
  }
  event.Set();
  for (auto& waiter : waiters) waiter.join();
  EXPECT_EQ(woken, 4);
}

// The waiter owns the event: it may be gone before Set has returned from telling.
TEST(Event, MayBeDestroyedByTheWaiterAsSoonAsItIsSet) {
  for (int i = 0; i < 200; ++i) {
    auto event = std::make_unique<Event>();
    std::thread setter([raw = event.get()] { raw->Set(); });
    event->WaitMs(UINT32_MAX);
    event.reset();
    setter.join();
  }
}

TEST(CallerEvent, IsSetAndResetAnyNumberOfTimes) {
  const OwnedEvent owned;
  const CallerEvent event(owned.Handle());
  EXPECT_FALSE(event.IsNull());
  event.Reset();
  EXPECT_FALSE(owned.IsSet());
  event.Set();
  event.Set();
  EXPECT_TRUE(owned.IsSet());
  event.Reset();
  EXPECT_FALSE(owned.IsSet());
}

TEST(CallerEvent, IgnoresWhatIsNoEvent) {
  EXPECT_TRUE(CallerEvent().IsNull());
  for (const std::intptr_t handle : {0, 54'321}) {
    const CallerEvent event(handle);
    event.Set();
    event.Reset();
    EXPECT_EQ(event.IsNull(), handle == 0);
  }
}

}  // namespace
}  // namespace merovane::platform
