// How project texts are read: words, numbers, letter case. The same on every system and in every
// locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace merovane::nvproject {

constexpr bool IsSpace(char c) {
  // Nearly all that is asked about are letters: one comparison for them.
  return static_cast<unsigned char>(c) <= ' ' && (c == ' ' || (c >= '\t' && c <= '\r'));
}

constexpr std::string_view SkipSpace(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && IsSpace(text[at])) ++at;
  return text.substr(at);
}

// The first word that white space delimits; empty when there is none.
constexpr std::string_view FirstWord(std::string_view text) {
  text = SkipSpace(text);
  std::size_t end = 0;
  while (end < text.size() && !IsSpace(text[end])) ++end;
  return text.substr(0, end);
}

// The signed decimal number that the text begins with, in 32 bits (a larger one keeps its low
// bits, so that unsigned values can be read too); none when there are no digits.
std::optional<std::uint32_t> ScanDecimal(std::string_view text);

// The number that a content begins with, in the given base (10 or 16; "0x" may lead the latter).
// Without digits it is 0. A number that is too large keeps its low 64 bits.
std::uint64_t ParseNumber(std::string_view text, unsigned base);

// A content's value: hexadecimal when there is an "x" or "X" anywhere, else decimal.
std::uint64_t ContentValue(std::string_view content);

// Letter case is ASCII's.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

// A hash that is equal for texts that differ in letter case only.
std::uint32_t CaselessHash(std::string_view text);

}  // namespace merovane::nvproject
