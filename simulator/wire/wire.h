// Diagnostic frames as the handset's firmware sees them on its port.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace handset {

using Bytes = std::vector<std::uint8_t>;

enum class ByteOrder { Big, Little };

struct Frame {
  std::uint8_t type = 0;
  std::uint8_t subtype = 0;
  Bytes payload;
  std::uint32_t sequence = 0;

  bool operator==(const Frame&) const = default;
};

// The bytes of a frame on the wire, both flags included.
Bytes EncodeFrame(const Frame& frame, ByteOrder order);

// Finds frames in a byte stream that may arrive in pieces of any size. It is strict, so that a
// station's mistakes show: a frame that a careful sender would not have built is rejected.
class FrameDecoder {
 public:
  using FrameSink = std::function<void(Frame)>;
  using RejectSink = std::function<void(std::string_view reason, const Bytes& unescaped)>;

  FrameDecoder(ByteOrder order, FrameSink onFrame, RejectSink onReject);

  void Feed(std::span<const std::uint8_t> bytes);
  // Forgets a half-received frame: the line was cut.
  void Reset();

 private:
  void Take(std::uint8_t byte);
  void Close();

  ByteOrder order_;
  FrameSink onFrame_;
  RejectSink onReject_;
  Bytes unescaped_;
  bool inFrame_ = false;
  bool escaped_ = false;
  bool badEscape_ = false;
};

std::uint16_t Read16(std::span<const std::uint8_t> bytes, std::size_t offset, ByteOrder order);
std::uint32_t Read32(std::span<const std::uint8_t> bytes, std::size_t offset, ByteOrder order);
void Append16(Bytes& bytes, std::uint16_t value, ByteOrder order);
void Append32(Bytes& bytes, std::uint32_t value, ByteOrder order);

// "0a 1b 2c"; reading takes any case and spacing and throws std::invalid_argument otherwise.
std::string ToHex(std::span<const std::uint8_t> bytes);
Bytes FromHex(std::string_view text);
Bytes ToBytes(std::string_view text);

}  // namespace handset
