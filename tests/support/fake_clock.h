// Time that passes only when somebody sleeps or waits for something that does not come.
#pragma once

#include <atomic>
#include <cstdint>

#include "platform/clock.h"

namespace merovane::test {

class FakeClock final : public platform::Clock {
 public:
  std::uint32_t NowMs() override { return nowMs_; }
  void SleepMs(std::uint32_t ms) override { nowMs_ += ms; }
  void Set(std::uint32_t nowMs) { nowMs_ = nowMs; }

 private:
  // Close to the end of the tick count, so that every test also runs over its wrap-around.
  std::atomic<std::uint32_t> nowMs_{UINT32_MAX - 500};
};

}  // namespace merovane::test
