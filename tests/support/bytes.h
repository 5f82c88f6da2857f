// Bytes as tests write them: hexadecimal text, or fields in the handset's byte order.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace merovane::test {

using Bytes = std::vector<std::uint8_t>;

// "00 05 7E", any spacing; throws std::invalid_argument for anything else.
Bytes Hex(std::string_view text);
// "00 05 7E", empty for no bytes.
std::string ToHex(std::span<const std::uint8_t> bytes);
Bytes Joined(const Bytes& first, const Bytes& second);

// A payload put together field by field: Fields(bigEndian).U16(5).U16(4).Raw("01 02").
class Fields {
 public:
  explicit Fields(bool bigEndian) : bigEndian_(bigEndian) {}
  Fields& U8(unsigned value) { return Put(value, 1); }
  Fields& U16(unsigned value) { return Put(value, 2); }
  Fields& U32(std::uint32_t value) { return Put(value, 4); }
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
  Fields& Put(std::uint32_t value, unsigned width);

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
