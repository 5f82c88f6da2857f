#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "handset/handset.h"

namespace station {

using handset::Bytes;
using namespace std::chrono_literals;

// Long enough that only something broken runs into it.
inline constexpr std::chrono::milliseconds kPatience{20'000};
// For what must not happen.
inline constexpr std::chrono::milliseconds kQuiet{150};

struct Packet {
  uint8_t type = 0;
  uint8_t subtype = 0;
  Bytes payload;

  std::string Text() const { return {payload.begin(), payload.end()}; }
};

// A station of its own: plain descriptors and its own idea of the wire.
class Station {
 public:
  // A device path, or "host:port".
  explicit Station(const std::string& address, bool bigEndian = true);
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;
  ~Station();

  void WriteRaw(const Bytes& bytes) const;
  void Send(uint8_t type, uint8_t subtype, const Bytes& payload = {}, uint32_t sequence = 0);
  std::optional<Packet> Receive(std::chrono::milliseconds timeout = kPatience);
  // The next packet of that type, passing over others.
  std::optional<Packet> ReceiveType(uint8_t type, std::chrono::milliseconds timeout = kPatience);
  std::optional<Packet> Ask(uint8_t type, uint8_t subtype, const Bytes& payload = {});
  // Whatever is there: empty when time is up or the line is cut.
  Bytes ReadRaw(std::chrono::milliseconds timeout = kPatience);
  // True when the handset's end is gone.
  bool WaitForHangup(std::chrono::milliseconds timeout = kPatience);

 private:
  int fd_ = -1;
  bool bigEndian_;
  Bytes pending_;
};

// Waits for the path to name a device.
bool WaitForPath(const std::string& path, bool present,
                 std::chrono::milliseconds timeout = kPatience);

}  // namespace station
