// Tells of serial devices that arrive while the process runs.
#pragma once

#include <cstdint>
#include <memory>

namespace merovane::platform {

class DeviceMonitor {
 public:
  virtual ~DeviceMonitor() = default;
  // Takes note of the ports that are there now: only later arrivals count. Starts watching.
  virtual void Start() = 0;
  // True once per arrival: stores the number of a port that came into being since the last call.
  virtual bool TakeArrival(std::int32_t& port) = 0;
};

// Watches the numbered ports 1 to 256: each is the device that CASSORIND_COM<n> names, else
// /dev/ttyS<n-1>, on Windows COM<n>. A device that goes and comes back arrives again, also when
// another took its place between two looks. TCP endpoints never arrive. The variables are read at
// each look, at most one in 10 ms.
std::unique_ptr<DeviceMonitor> CreateDeviceMonitor();

}  // namespace merovane::platform
