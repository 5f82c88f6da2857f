// Waits in the background for a handset that is started or restarted, and puts it into a mode.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>

#include "link/result.h"
#include "platform/device_monitor.h"
#include "platform/event.h"
#include "platform/thread.h"

namespace merovane {

struct Phone;

class ModeProcess {
 public:
  struct Request {
    bool waitForPort = false;
    std::uint32_t mode = 0;
    platform::CallerEvent event;
    std::uint32_t timeLimitMs = 5000;  // 0: without end
    // With waitForPort: only opens the link on the port that arrives and leaves it open.
    bool reopenOnly = false;
    // With waitForPort: other ports are ignored, and the link is left open on this one.
    std::optional<std::int32_t> expectedPort;
  };

  ~ModeProcess();

  // Waiting for ports needs one; it takes note of what is there when a process starts.
  void SetDeviceMonitor(std::shared_ptr<platform::DeviceMonitor> monitor);

  // Ends a worker that still runs and starts another, which shares `phone` (the owner of this
  // object). Returns at once: 4 for a null event or without a device monitor where one is
  // needed, 16 when the system gives no thread.
  Result Start(const std::shared_ptr<Phone>& phone, const Request& request);
  // The same without a caller's event; returns when the worker has ended: 16 when it did not catch
  // the handset. Dispatches the calling thread's messages meanwhile.
  Result Run(const std::shared_ptr<Phone>& phone, const Request& request);
  // Ends the worker; one that does not end within 3300 ms is given up.
  void Stop();

  // The port on which a device was found, 0 when none.
  std::int32_t PortFound() const { return portFound_; }

  // Restarts the handset; afterwards reaches it on the port on which it comes back, when
  // `throughPort` is set and it does not stay reachable.
  Result Reset(const std::shared_ptr<Phone>& phone, bool throughPort, std::uint32_t rebootKind,
               platform::CallerEvent event, std::uint32_t timeLimitMs,
               std::optional<std::int32_t> expectedPort);

 private:
  Result StartWorker(const std::shared_ptr<Phone>& phone, const Request& request);
  void Work(Phone& phone, const Request& request);
  bool WorkOnOpenLink(Phone& phone, const Request& request);
  bool WorkOnArrivingPort(Phone& phone, const Request& request);

  std::shared_ptr<platform::DeviceMonitor> monitor_;
  platform::Thread worker_;
  platform::Event stop_;
  platform::Event done_;
  std::atomic<bool> running_{false};
  std::atomic<std::int32_t> portFound_{0};
};

}  // namespace merovane
