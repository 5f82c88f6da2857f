#include "wire/wire.h"

#include <stdexcept>
#include <utility>

namespace handset {
namespace {

constexpr std::uint8_t kFlag = 0x7E;
constexpr std::uint8_t kEscape = 0x7D;
constexpr std::uint8_t kEscapeMask = 0x20;
constexpr std::size_t kHeaderBytes = 8;
constexpr std::size_t kLargestFrameBytes = 0xFFFF;

void AppendEscaped(Bytes& out, std::uint8_t byte) {
  if (byte == kFlag || byte == kEscape) {
    out.push_back(kEscape);
    byte ^= kEscapeMask;
  }
  out.push_back(byte);
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

Bytes EncodeFrame(const Frame& frame, ByteOrder order) {
  Bytes head;
  Append32(head, frame.sequence, ByteOrder::Little);
  Append16(head, static_cast<std::uint16_t>(frame.payload.size() + kHeaderBytes), order);
  head.push_back(frame.type);
  head.push_back(frame.subtype);

  Bytes out;
  out.reserve(frame.payload.size() + frame.payload.size() / 16 + 2 * kHeaderBytes);
  out.push_back(kFlag);
  for (std::uint8_t byte : head) AppendEscaped(out, byte);
  for (std::uint8_t byte : frame.payload) AppendEscaped(out, byte);
  out.push_back(kFlag);
  return out;
}

FrameDecoder::FrameDecoder(ByteOrder order, FrameSink onFrame, RejectSink onReject)
    : order_(order), onFrame_(std::move(onFrame)), onReject_(std::move(onReject)) {}

void FrameDecoder::Feed(std::span<const std::uint8_t> bytes) {
  for (std::uint8_t byte : bytes) Take(byte);
}

void FrameDecoder::Reset() {
  unescaped_.clear();
  inFrame_ = escaped_ = badEscape_ = false;
}

void FrameDecoder::Take(std::uint8_t byte) {
  if (!inFrame_) {
    inFrame_ = byte == kFlag;
    return;
  }
  if (byte == kFlag) {
    // Repeated flags open one frame.
    if (!unescaped_.empty() || escaped_) Close();
    return;
  }
  if (escaped_) {
    escaped_ = false;
    byte ^= kEscapeMask;
    badEscape_ |= byte != kFlag && byte != kEscape;
  } else if (byte == kEscape) {
    escaped_ = true;
    return;
  }
  if (unescaped_.size() == kLargestFrameBytes) {
    onReject_("longer than a frame can be", unescaped_);
    Reset();
    return;
  }
  unescaped_.push_back(byte);
}

void FrameDecoder::Close() {
  const Bytes raw = std::move(unescaped_);
  const bool danglingEscape = escaped_;
  const bool badEscape = badEscape_;
  Reset();
  std::string_view reason;
  if (danglingEscape) {
    reason = "ends inside an escape";
  } else if (badEscape) {
    reason = "escapes a byte that needs none";
  } else if (raw.size() < kHeaderBytes) {
    reason = "shorter than a header";
  } else if (Read16(raw, 4, order_) != raw.size()) {
    reason = "length field does not agree";
  }
  if (!reason.empty()) {
    // What ended this piece of noise may be what opens the next frame.
    inFrame_ = true;
    onReject_(reason, raw);
    return;
  }
  Frame frame;
  frame.sequence = Read32(raw, 0, ByteOrder::Little);
  frame.type = raw[6];
  frame.subtype = raw[7];
  frame.payload.assign(raw.begin() + kHeaderBytes, raw.end());
  onFrame_(std::move(frame));
}

std::uint16_t Read16(std::span<const std::uint8_t> bytes, std::size_t offset, ByteOrder order) {
  if (bytes.size() < offset + 2) throw std::out_of_range("16-bit field past the end");
  const std::uint8_t first = bytes[offset];
  const std::uint8_t second = bytes[offset + 1];
  return static_cast<std::uint16_t>(order == ByteOrder::Big ? first << 8 | second
                                                            : second << 8 | first);
}

std::uint32_t Read32(std::span<const std::uint8_t> bytes, std::size_t offset, ByteOrder order) {
  const std::uint32_t first = Read16(bytes, offset, order);
  const std::uint32_t second = Read16(bytes, offset + 2, order);
  return order == ByteOrder::Big ? first << 16 | second : second << 16 | first;
}

void Append16(Bytes& bytes, std::uint16_t value, ByteOrder order) {
  const auto high = static_cast<std::uint8_t>(value >> 8);
  const auto low = static_cast<std::uint8_t>(value);
  bytes.push_back(order == ByteOrder::Big ? high : low);
  bytes.push_back(order == ByteOrder::Big ? low : high);
}

void Append32(Bytes& bytes, std::uint32_t value, ByteOrder order) {
  const auto high = static_cast<std::uint16_t>(value >> 16);
  const auto low = static_cast<std::uint16_t>(value);
  Append16(bytes, order == ByteOrder::Big ? high : low, order);
  Append16(bytes, order == ByteOrder::Big ? low : high, order);
}

std::string ToHex(std::span<const std::uint8_t> bytes) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  text.reserve(bytes.size() * 3);
  for (std::uint8_t byte : bytes) {
    if (!text.empty()) text += ' ';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0xF];
  }
  return text;
}

Bytes FromHex(std::string_view text) {
  Bytes bytes;
  int high = -1;
  for (char c : text) {
    if (c == ' ' || c == '\t') continue;
    const int digit = HexDigit(c);
    if (digit < 0) throw std::invalid_argument("not hexadecimal: " + std::string(text));
    if (high < 0) {
      high = digit;
    } else {
      bytes.push_back(static_cast<std::uint8_t>(high << 4 | digit));
      high = -1;
    }
  }
  if (high >= 0) throw std::invalid_argument("odd number of hexadecimal digits");
  return bytes;
}

Bytes ToBytes(std::string_view text) { return {text.begin(), text.end()}; }

}  // namespace handset
