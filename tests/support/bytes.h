// Bytes as tests write them: hexadecimal text, or fields in the handset's byte order.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "wire/wire.h"

namespace merovane::test {

using handset::Bytes;

inline handset::ByteOrder OrderOf(bool bigEndian) {
  return bigEndian ? handset::ByteOrder::Big : handset::ByteOrder::Little;
}

// "00 05 7E", any blanks; throws std::invalid_argument for anything else.
Bytes Hex(std::string_view text);
// "00 05 7E", empty for no bytes.
std::string ToHex(std::span<const std::uint8_t> bytes);
Bytes Joined(const Bytes& first, const Bytes& second);

// A payload put together field by field: Fields(bigEndian).U16(5).U16(4).Raw("01 02").
class Fields {
 public:
  explicit Fields(bool bigEndian) : bigEndian_(bigEndian) {}
  Fields& U8(unsigned value) {
    bytes_.push_back(static_cast<std::uint8_t>(value));
    return *this;
  }
  Fields& U16(unsigned value);
  Fields& U32(std::uint32_t value);
  Fields& Raw(const Bytes& bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    return *this;
  }
  Fields& Raw(std::string_view hex) { return Raw(Hex(hex)); }
  Fields& Zeros(std::size_t count) {
    bytes_.resize(bytes_.size() + count);
    return *this;
  }
  const Bytes& Get() const { return bytes_; }

 private:
  bool bigEndian_;
  Bytes bytes_;
};

// What functions of the scripted handset take: hexadecimal text, bytes or fields.
class Payload {
 public:
  Payload() = default;
  Payload(const char* hex) : bytes_(Hex(hex)) {}
  Payload(Bytes bytes) : bytes_(std::move(bytes)) {}
  Payload(const Fields& fields) : bytes_(fields.Get()) {}
  const Bytes& Get() const { return bytes_; }

 private:
  Bytes bytes_;
};

}  // namespace merovane::test
