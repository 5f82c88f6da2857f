#include "platform/clock.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>

#include "support/fake_clock.h"

namespace merovane::platform {
namespace {

TEST(Deadline, RunsOutAcrossTheWrapOfTheTicksAndIsExtendedFromNow) {
  merovane::test::FakeClock clock;
  clock.Set(UINT32_MAX - 30);
  Deadline deadline(clock, 100);
  clock.SleepMs(99);
  EXPECT_FALSE(deadline.Passed());
  EXPECT_EQ(deadline.RemainingMs(), 1U);
  clock.SleepMs(501);
  EXPECT_TRUE(deadline.Passed());
  EXPECT_EQ(deadline.ElapsedMs(), 600U);
  EXPECT_EQ(deadline.RemainingMs(), 0U);
  deadline.ExtendFromNow(500);
  EXPECT_EQ(deadline.RemainingMs(), 500U);
  EXPECT_TRUE(Deadline(clock, 0).Passed());
}

TEST(SystemClock, MovesOnAsLongAsItSleeps) {
  Clock& clock = SystemClock();
  const Deadline deadline(clock, 0);
  for (int i = 0; i < 20; ++i) clock.SleepMs(5);
  clock.SleepMs(0);
  // A tick count may move in steps of 16 ms.
  EXPECT_GE(deadline.ElapsedMs(), 100U - 16U);
}

std::tm Library(bool utc) {
  const std::time_t now = std::time(nullptr);
  return utc ? *std::gmtime(&now) : *std::localtime(&now);
}

std::array<int, 6> Fields(const std::tm& time) {
  return {time.tm_year + 1900, time.tm_mon + 1, time.tm_mday,
          time.tm_hour,        time.tm_min,     time.tm_sec};
}

// Follows the time over the turn of a second: what was kept for the last one must not stay.
TEST(CalendarTime, IsTheSystemsLocalAndUtcTime) {
  for (const bool utc : {false, true}) {
    const auto read = utc ? UtcTime : LocalTime;
    const int first = read().second;
    int checked = 0;
    while (read().second == first || checked == 0) {
      const std::tm before = Library(utc);
      const CalendarTime time = read();
      const std::tm after = Library(utc);
      EXPECT_TRUE(time.millisecond >= 0 && time.millisecond < 1000);
      // The coarse clock behind time() may still show the second before.
      if (before.tm_sec == after.tm_sec && time.millisecond > 100) {
        EXPECT_EQ(
            (std::array{time.year, time.month, time.day, time.hour, time.minute, time.second}),
            Fields(after));
        ++checked;
      }
      SystemClock().SleepMs(10);
    }
  }
}

}  // namespace
}  // namespace merovane::platform
