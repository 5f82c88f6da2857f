// How texts of projects are read and written: words, numbers, letter case, paths of files. The same
// on every system and in every locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
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

// Whether a content is one whole number that `bytes` hold, signed or not. The "X" of a hexadecimal
// one may also follow it.
bool IsNumberOf(std::string_view content, std::uint32_t bytes);

// The hexadecimal spellings in which values are written to contents.
enum class HexForm {
  UpperUpper,  // 0X1F
  UpperLower,  // 0X1f
  LowerLower,  // 0x1f
};
std::string HexText(HexForm form, std::uint32_t value);

// Letter case is ASCII's.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);
// A hash that is equal for texts that differ in letter case only.
std::uint32_t CaselessHash(std::string_view text);

// What parts the names in a path of a project file, on every system.
inline constexpr std::string_view kSeparators = "\\/";
// The path seen from the directory of `file`; an absolute one as it is. None when `file` has no
// directory part to join it with.
std::optional<std::string> JoinPath(std::string_view file, std::string_view path);

}  // namespace merovane::nvproject
