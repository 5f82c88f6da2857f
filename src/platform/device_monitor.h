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

// Watches the system's serial devices: on Windows the COM ports in the registry's device map, elsewhere
// the devices that the numbered ports name (CASSORIND_COM<n>, else /dev/ttyS<n-1>) for n from 1 to 256, and the
// named TCP endpoints that begin to listen are not devices. Polled, at most every 10 ms, from TakeArrival.
std::unique_ptr<DeviceMonitor> CreateDeviceMonitor();

}  // namespace merovane::platform
