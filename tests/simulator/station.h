#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "handset/handset.h"

namespace station {

using handset::Bytes;
using handset::Frame;
using namespace std::chrono_literals;

// Long enough that only something broken runs into it.
inline constexpr std::chrono::milliseconds kPatience{20'000};
// For what must not happen.
inline constexpr std::chrono::milliseconds kQuiet{150};

// The station's end of the line: a plain descriptor.
class Station {
 public:
  // A device path, or "host:port" of this machine.
  explicit Station(const std::string& address, bool bigEndian = true);
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;
  ~Station();

  void WriteRaw(const Bytes& bytes) const;
  void Send(uint8_t type, uint8_t subtype, const Bytes& payload = {}, uint32_t sequence = 0);
  std::optional<Frame> Receive(std::chrono::milliseconds timeout = kPatience);
  // The next frame of that type, passing over others.
  std::optional<Frame> ReceiveType(uint8_t type);
  std::optional<Frame> Ask(uint8_t type, uint8_t subtype, const Bytes& payload = {});
  // Whatever is there: empty when time is up or the line is cut.
  Bytes ReadRaw(std::chrono::milliseconds timeout = kPatience) const;
  // True when the handset's end is gone.
  bool WaitForHangup() const;

 private:
  int fd_ = -1;
  handset::ByteOrder order_;
  std::deque<Frame> frames_;
  handset::FrameDecoder decoder_;
};

// A handset that is up, in a test mode.
inline handset::HandsetOptions Running(
    handset::TransportKind transport = handset::TransportKind::Pty, uint16_t tcpPort = 0) {
  handset::HandsetOptions options;
  options.transport = transport;
  options.tcpPort = tcpPort;
  options.startMode = 1;
  return options;
}

// Waits until the handset's port is there.
inline bool WaitForPort(const handset::Handset& phone) {
  phone.State();  // Behind the port's end, if that is what the station has just seen.
  return phone.WaitForState([](const auto& state) { return state.portPresent; }, kPatience);
}

}  // namespace station
