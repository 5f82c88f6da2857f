// Time by the monotonic and the real-time clock.
#include "platform/clock.h"

#include <cerrno>
#include <ctime>

namespace merovane::platform {
namespace {

class MonotonicClock final : public Clock {
 public:
  std::uint32_t NowMs() override {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint32_t>(static_cast<std::uint64_t>(now.tv_sec) * 1000 +
                                      static_cast<std::uint64_t>(now.tv_nsec) / 1'000'000);
  }

  void SleepMs(std::uint32_t ms) override {
    if (ms == 0) return;
    timespec left{static_cast<std::time_t>(ms / 1000), static_cast<long>(ms % 1000) * 1'000'000};
    while (clock_nanosleep(CLOCK_MONOTONIC, 0, &left, &left) == EINTR) {
    }
  }
};

CalendarTime ToCalendarTime(const std::tm& time, long nanoseconds) {
  return {time.tm_year + 1900,
          time.tm_mon + 1,
          time.tm_mday,
          time.tm_hour,
          time.tm_min,
          time.tm_sec,
          static_cast<int>(nanoseconds / 1'000'000)};
}

}  // namespace

Clock& SystemClock() {
  static MonotonicClock clock;
  return clock;
}

CalendarTime LocalTime() {
  // Every log line asks; breaking a time down costs far more than reading the clock.
  struct BrokenDown {
    bool valid;
    std::time_t second;
    std::tm time;
  };
  thread_local BrokenDown last{};
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  if (!last.valid || last.second != now.tv_sec) {
    localtime_r(&now.tv_sec, &last.time);
    last.second = now.tv_sec;
    last.valid = true;
  }
  return ToCalendarTime(last.time, now.tv_nsec);
}

CalendarTime UtcTime() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  std::tm time{};
  gmtime_r(&now.tv_sec, &time);
  return ToCalendarTime(time, now.tv_nsec);
}

}  // namespace merovane::platform
