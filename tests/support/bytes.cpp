#include "support/bytes.h"

#include <cctype>
#include <stdexcept>

namespace merovane::test {

Bytes Hex(std::string_view text) {
  Bytes bytes;
  std::string digits;
  for (const char character : text) {
    if (std::isspace(static_cast<unsigned char>(character))) continue;
    if (!std::isxdigit(static_cast<unsigned char>(character))) {
      throw std::invalid_argument("not hexadecimal: " + std::string(text));
    }
    digits += character;
  }
  if (digits.size() % 2 != 0) throw std::invalid_argument("half a byte: " + std::string(text));
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits.substr(i, 2), nullptr, 16)));
  }
  return bytes;
}

std::string ToHex(std::span<const std::uint8_t> bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t byte : bytes) {
    if (!text.empty()) text += ' ';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

Bytes Joined(const Bytes& first, const Bytes& second) {
  Bytes all = first;
  all.insert(all.end(), second.begin(), second.end());
  return all;
}

Fields& Fields::Put(std::uint32_t value, unsigned width) {
  for (unsigned i = 0; i < width; ++i) {
    const unsigned shift = 8 * (bigEndian_ ? width - 1 - i : i);
    bytes_.push_back(static_cast<std::uint8_t>(value >> shift));
  }
  return *this;
}

}  // namespace merovane::test
