// Serial devices and TCP connections as streams of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/event.h"

namespace merovane::platform {

// How long a device may take no byte before a write is given up.
inline constexpr std::uint32_t kWriteStallMs = 2000;

inline constexpr std::uint32_t kMaxBaudRate = 4'000'000;

// What a read gives when no byte will come any more.
inline constexpr std::int32_t kDeviceGone = -1;

// The open device. Any number of threads may read, one at a time may write; of several readers each
// byte goes to one. Destroying closes the device; nothing may run then. A `stop` that is set ends a
// wait at once; it must be an event for devices, and stays the caller's.
class ByteStream {
 public:
  virtual ~ByteStream() = default;
  // Waits until at least one byte is there and takes what is there, as far as `buffer` holds it.
  // Returns the number of bytes, 0 when the limit passed or `stop` was set first, kDeviceGone when
  // no byte will come any more. UINT32_MAX is no limit.
  virtual std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                            const Event& stop) = 0;
  // Returns the number of bytes that the system took: fewer than given when the device is gone,
  // takes nothing for kWriteStallMs, or `stop` was set.
  virtual std::size_t Write(std::span<const std::byte> data, const Event& stop) = 0;
  // Drops what the system has received. Any thread may call it.
  virtual bool Clear() = 0;
};

// Why a stream did not open, and the system's own error number, 0 when it gave none.
struct OpenTrouble {
  enum class Why {
    None,
    NoDevice,           // the system has no device of that name
    Taken,              // another channel or program has it
    Denied,             // this user may not open it
    NoSerialDevice,     // the name stands for a file or a folder
    Pipe,               // the name stands for a pipe
    RateRefused,        // the rate is beyond the device's, or ours
    HostUnknown,        // the host's name does not resolve
    ConnectionRefused,  // nothing listens there, or it cannot be reached in time
    Other,
  };
  Why why = Why::None;
  std::int32_t systemError = 0;
};

// Each gives a stream that is the caller's, or null when it cannot be opened, which `trouble`
// explains.

// A serial port by its name, as DeviceOfPort gives it: 8 data bits, no parity, 1 stop bit, nothing
// interpreted, no flow control. What it had received before is dropped. Null also when another has
// the device, and for a rate of 0 or above kMaxBaudRate.
std::unique_ptr<ByteStream> OpenSerialDevice(const std::string& name, std::uint32_t baudRate,
                                             OpenTrouble& trouble);
// `service` is the TCP port. Resolving the host's name may take longer than the limit.
std::unique_ptr<ByteStream> ConnectTcp(const std::string& host, const std::string& service,
                                       std::uint32_t limitMs, OpenTrouble& trouble);

}  // namespace merovane::platform
