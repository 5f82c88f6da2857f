// Millisecond time. Ticks wrap; differences are taken in unsigned 32 bits.
#pragma once

#include <cstdint>

namespace merovane::platform {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::uint32_t NowMs() = 0;
  virtual void SleepMs(std::uint32_t ms) = 0;
};

// The system's monotonic millisecond tick count.
Clock& SystemClock();

// Calendar time to the millisecond.
struct CalendarTime {
  int year, month, day, hour, minute, second, millisecond;
};
CalendarTime LocalTime();
CalendarTime UtcTime();

// A time limit that starts running when it is made.
class Deadline {
 public:
  Deadline(Clock& clock, std::uint32_t limitMs)
      : clock_(clock), start_(clock.NowMs()), limitMs_(limitMs) {}

  std::uint32_t ElapsedMs() const { return clock_.NowMs() - start_; }
  bool Passed() const { return ElapsedMs() >= limitMs_; }
  std::uint32_t RemainingMs() const {
    const std::uint32_t elapsed = ElapsedMs();
    return elapsed >= limitMs_ ? 0 : limitMs_ - elapsed;
  }
  // Ends `extraMs` from now instead.
  void ExtendFromNow(std::uint32_t extraMs) { limitMs_ = ElapsedMs() + extraMs; }

 private:
  Clock& clock_;
  std::uint32_t start_;
  std::uint32_t limitMs_;
};

}  // namespace merovane::platform
