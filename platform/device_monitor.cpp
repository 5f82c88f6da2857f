#include "platform/device_monitor.h"

#include <deque>
#include <map>

#include "platform/clock.h"
#include "platform/event.h"
#include "platform/mutex.h"
#include "platform/serial_ports.h"
#include "platform/thread.h"

namespace merovane::platform {
namespace {

constexpr std::uint32_t kPollIntervalMs = 10;

// Looks when it is asked, where that is enough; else all the time, on a thread of its own.
class PollingDeviceMonitor final : public DeviceMonitor {
 public:
  ~PollingDeviceMonitor() override {
    stop_.Set();
    watch_.WaitMs(UINT32_MAX);
  }

  void Start() override {
    {
      const MutexLock lock(mutex_);
      known_ = ports_.Present();
      arrivals_.clear();
      polledAtMs_ = SystemClock().NowMs();
      started_ = true;
    }
    if (SerialPorts::TellsReturns() || watch_.Running()) return;
    watch_.StartWithoutQueue([this] {
      while (!stop_.WaitMs(kPollIntervalMs)) {
        const MutexLock lock(mutex_);
        Poll();
      }
    });
  }

  bool TakeArrival(std::int32_t& port) override {
    const MutexLock lock(mutex_);
    if (!started_) return false;
    if (arrivals_.empty()) Poll();
    if (arrivals_.empty()) return false;
    port = arrivals_.front();
    arrivals_.pop_front();
    return true;
  }

 private:
  void Poll() MEROVANE_REQUIRES(mutex_) {
    const std::uint32_t nowMs = SystemClock().NowMs();
    if (nowMs - polledAtMs_ < kPollIntervalMs) return;
    polledAtMs_ = nowMs;
    auto present = ports_.Present();
    for (const auto& [port, device] : present) {
      const auto before = known_.find(port);
      if (before == known_.end() || before->second != device) arrivals_.push_back(port);
    }
    known_ = std::move(present);
  }

  Mutex mutex_;
  SerialPorts ports_ MEROVANE_GUARDED_BY(mutex_);
  std::map<std::int32_t, std::uint64_t> known_ MEROVANE_GUARDED_BY(mutex_);
  std::deque<std::int32_t> arrivals_ MEROVANE_GUARDED_BY(mutex_);
  std::uint32_t polledAtMs_ MEROVANE_GUARDED_BY(mutex_) = 0;
  bool started_ MEROVANE_GUARDED_BY(mutex_) = false;
  Event stop_;
  Thread watch_;
};

}  // namespace

std::unique_ptr<DeviceMonitor> CreateDeviceMonitor() {
  return std::make_unique<PollingDeviceMonitor>();
}

}  // namespace merovane::platform
