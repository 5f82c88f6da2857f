// A flag that, once set, wakes whoever waits for it, be it together with a device.
#pragma once

#include <atomic>
#include <cstdint>

namespace companions {

class StopSignal {
 public:
  StopSignal();
  ~StopSignal();
  StopSignal(const StopSignal&) = delete;
  StopSignal& operator=(const StopSignal&) = delete;

  void Set();
  bool IsSet() const { return set_.load(std::memory_order_acquire); }
  // True when the signal is set within the time.
  bool WaitMs(std::uint32_t ms) const;
  // For the system's waits: a descriptor that becomes readable, or an event handle.
  std::intptr_t Handle() const { return handle_; }

 private:
  std::intptr_t handle_;
  std::atomic<bool> set_{false};
};

}  // namespace companions
