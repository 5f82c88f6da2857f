#include "platform/event.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "platform/system.h"

namespace merovane::platform {
namespace {

class EventTest : public testing::TestWithParam<Event::For> {};

TEST_P(EventTest, StaysSetForEveryWaiterUntilItIsReset) {
  Event event(GetParam());
  EXPECT_FALSE(event.WaitMs(5));
  std::atomic<int> woken{0};
  std::vector<std::thread> waiters;
  waiters.reserve(4);
  for (int i = 0; i < 4; ++i) {
    waiters.emplace_back([&, limitMs = i % 2 ? UINT32_MAX : 60'000U] {
      if (event.WaitMs(limitMs)) ++woken;
    });
  }
  EXPECT_FALSE(event.IsSet());
  event.Set();
  for (auto& waiter : waiters) waiter.join();
  EXPECT_EQ(woken, 4);
  EXPECT_TRUE(event.IsSet());
  EXPECT_TRUE(event.WaitMs(0));
  event.Reset();
  EXPECT_FALSE(event.IsSet());
  EXPECT_FALSE(event.WaitMs(0));
}

INSTANTIATE_TEST_SUITE_P(Kinds, EventTest,
                         testing::Values(Event::For::Threads, Event::For::Devices));

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

TEST(CallerEvent, IsSetAndResetAnyNumberOfTimesAndIgnoresWhatIsNone) {
  const test::OwnedEvent owned;
  const CallerEvent event(owned.Handle());
  EXPECT_FALSE(event.IsNull());
  event.Reset();
  EXPECT_FALSE(owned.IsSet());
  event.Set();
  event.Set();
  EXPECT_TRUE(owned.IsSet());
  event.Reset();
  EXPECT_FALSE(owned.IsSet());
  for (const std::intptr_t handle : {0, 54'321}) {
    const CallerEvent none(handle);
    none.Set();
    none.Reset();
    EXPECT_EQ(none.IsNull(), handle == 0);
  }
}

}  // namespace
}  // namespace merovane::platform
