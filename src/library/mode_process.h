// Waits in the background for a handset that is started or restarted, and puts it into a mode.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "link/result.h"
#include "platform/device_monitor.h"
#include "platform/event.h"
#include "platform/mutex.h"
#include "platform/thread.h"

namespace merovane::library {

struct PhoneObject;

// For any thread.
class ModeProcess {
 public:
  struct Request {
    // Waits for a device to arrive, which the monitor tells of; it must not be null then.
    bool waitForPort = false;
    std::shared_ptr<platform::DeviceMonitor> monitor;
    std::uint32_t mode = 0;
    std::uint32_t sequence = 0;  // of the first frame
    platform::CallerEvent event;
    std::uint32_t timeLimitMs = 5000;  // 0: without end
    // With waitForPort: only opens the link on the port that arrives and leaves it open.
    bool reopenOnly = false;
    // With waitForPort: other ports are ignored, and the link is left open on this one.
    std::optional<std::int32_t> expectedPort;
  };

  ~ModeProcess();

  // Ends a worker that still runs and starts another, which shares `phone` (the owner of this
  // object) and takes its turn there for each attempt. Returns at once: 4 for a null event or
  // without a monitor where one is needed, 16 when the system gives no thread.
  Result Start(const std::shared_ptr<PhoneObject>& phone, const Request& request);
  // The same without a caller's event; returns when the worker has ended: 16 when it did not catch
  // the handset. Dispatches the calling thread's messages meanwhile.
  Result Run(const std::shared_ptr<PhoneObject>& phone, const Request& request);
  // Ends the worker; one that does not end within 3300 ms is given up.
  void Stop();
  // The same, and no other is started any more: starting one gives 1.
  void End();

  // The port on which a device was found, 0 when none.
  std::int32_t PortFound() const;

  struct Restart {
    // Reaches the handset afterwards on the port on which it comes back, unless it stays reachable.
    bool throughPort = false;
    std::uint32_t rebootKind = 0;
    platform::CallerEvent event;
    std::uint32_t timeLimitMs = 0;
    std::optional<std::int32_t> expectedPort;
    std::shared_ptr<platform::DeviceMonitor> monitor;
  };
  Result Reset(const std::shared_ptr<PhoneObject>& phone, const Restart& restart);

 private:
  class Worker;

  Result Begin(const std::shared_ptr<PhoneObject>& phone, const Request& request);
  Result StartWorker(const std::shared_ptr<PhoneObject>& phone, const Request& request);
  static Result RestartInTurn(PhoneObject& phone, const Restart& restart, bool& comesBack);
  void StopWorker() MEROVANE_REQUIRES(control_);
  std::shared_ptr<Worker> Current() const;

  // Held while a worker is started or stopped.
  platform::Mutex control_;
  platform::Thread thread_ MEROVANE_GUARDED_BY(control_);
  bool ended_ MEROVANE_GUARDED_BY(control_) = false;
  mutable platform::Mutex currentMutex_;
  // Shared with its thread, so that one that was given up cannot disturb the next.
  std::shared_ptr<Worker> current_ MEROVANE_GUARDED_BY(currentMutex_);
};

}  // namespace merovane::library
