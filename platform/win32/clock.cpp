// Time by the tick count and the system time.
#include "platform/clock.h"

#include "platform/win32/windows_api.h"
// After the one above: it needs the names of the Windows headers.
#include <timeapi.h>

namespace merovane::platform {
namespace {

// A sleep ends at a tick of the system's timer, which by itself ticks every 15.6 ms. It is asked
// to tick every millisecond while a short sleep lasts, so that nothing stays changed.
constexpr std::uint32_t kTimerPeriodMs = 16;

class TickClock final : public Clock {
 public:
  std::uint32_t NowMs() override { return GetTickCount(); }

  void SleepMs(std::uint32_t ms) override {
    if (ms == 0) return;
    const bool fine = ms < kTimerPeriodMs && timeBeginPeriod(1) == TIMERR_NOERROR;
    Sleep(ms);
    if (fine) timeEndPeriod(1);
  }
};

CalendarTime ToCalendarTime(const SYSTEMTIME& time) {
  return {time.wYear,   time.wMonth,  time.wDay,         time.wHour,
          time.wMinute, time.wSecond, time.wMilliseconds};
}

}  // namespace

Clock& SystemClock() {
  static TickClock clock;
  return clock;
}

CalendarTime LocalTime() {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return ToCalendarTime(time);
}

CalendarTime UtcTime() {
  SYSTEMTIME time{};
  GetSystemTime(&time);
  return ToCalendarTime(time);
}

}  // namespace merovane::platform
