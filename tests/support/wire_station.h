// A station that talks on the wire itself, without the library.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "support/simulated_handset.h"

namespace merovane::test {

// A plain descriptor at the station's end of the line.
class WireStation {
 public:
  // A device path, or "host:port" of this machine.
  explicit WireStation(const std::string& address, bool bigEndian = true);
  WireStation(const WireStation&) = delete;
  WireStation& operator=(const WireStation&) = delete;
  ~WireStation();

  void WriteRaw(const handset::Bytes& bytes) const;
  void Send(std::uint8_t type, std::uint8_t subtype, const handset::Bytes& payload = {},
            std::uint32_t sequence = 0);
  std::optional<handset::Frame> Receive(std::chrono::milliseconds timeout = kPatience);
  // The next frame of that type, passing over others.
  std::optional<handset::Frame> ReceiveType(std::uint8_t type);
  std::optional<handset::Frame> Ask(std::uint8_t type, std::uint8_t subtype,
                                    const handset::Bytes& payload = {});
  // Whatever is there: empty when time is up or the line is cut.
  handset::Bytes ReadRaw(std::chrono::milliseconds timeout = kPatience) const;
  // True when the handset's end is gone.
  bool WaitForHangup() const;

 private:
  int fd_ = -1;
  handset::ByteOrder order_;
  std::deque<handset::Frame> frames_;
  handset::FrameDecoder decoder_;
};

}  // namespace merovane::test
