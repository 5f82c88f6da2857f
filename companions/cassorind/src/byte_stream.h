// The open device of a channel, as each system must provide it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "device.h"
#include "support/stop_signal.h"

namespace cassorind {

// How long a connection may take to come about once its host name is resolved.
inline constexpr std::uint32_t kConnectLimitMs = 2000;
// How long a device may take no byte before a write is given up.
inline constexpr std::uint32_t kWriteStallMs = 2000;

inline constexpr std::uint32_t kMaxBaudRate = 4'000'000;

inline constexpr std::int32_t kDeviceGone = -1;

// One thread at a time may read and one may write, both at once. Destroying
// closes the device; nothing may run then.
class ByteStream {
 public:
  virtual ~ByteStream() = default;
  // Waits until at least one byte is there and takes what is there, as far as
  // `buffer` holds it. Returns the number of bytes, 0 when the limit passed or
  // `stop` was set first, kDeviceGone when no byte will come any more.
  virtual std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                            const companions::StopSignal& stop) = 0;
  // Returns the number of bytes that the system took: fewer than given when the
  // device is gone, takes nothing for kWriteStallMs, or `stop` was set.
  virtual std::size_t Write(std::span<const std::byte> data,
                            const companions::StopSignal& stop) = 0;
  // Drops what the system has received. Any thread may call it.
  virtual bool Clear() = 0;
};

// Null when the device cannot be opened.
std::unique_ptr<ByteStream> OpenSerial(const SerialDevice& device, std::uint32_t baudRate);
std::unique_ptr<ByteStream> OpenTcp(const TcpAddress& address);

}  // namespace cassorind
