#include "support/bytes.h"

#include <algorithm>
#include <cctype>

namespace merovane::test {
Bytes Hex(std::string_view text) { return handset::FromHex(text); }

std::string ToHex(std::span<const std::uint8_t> bytes) {
  std::string text = handset::ToHex(bytes);
  std::ranges::transform(text, text.begin(),
                         [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

Bytes Joined(const Bytes& first, const Bytes& second) {
  Bytes all = first;
  all.insert(all.end(), second.begin(), second.end());
  return all;
}

Fields& Fields::U16(unsigned value) {
  handset::Append16(bytes_, static_cast<std::uint16_t>(value), OrderOf(bigEndian_));
  return *this;
}

Fields& Fields::U32(std::uint32_t value) {
  handset::Append32(bytes_, value, OrderOf(bigEndian_));
  return *this;
}

}  // namespace merovane::test
