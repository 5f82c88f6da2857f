#include "nvproject/text_rules.h"

#include <cstring>

#include "platform/ascii.h"

namespace merovane::nvproject {
namespace {

using platform::DigitValue;
using platform::IsDigit;
using platform::ToLower;

// Takes a sign off the text; true for a minus.
bool TakeSign(std::string_view& text) {
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

}  // namespace

std::optional<std::uint32_t> ScanDecimal(std::string_view text) {
  text = SkipSpace(text);
  const bool negative = TakeSign(text);
  if (text.empty() || !IsDigit(text.front())) return std::nullopt;
  std::uint32_t value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) break;
    value = value * 10 + static_cast<std::uint32_t>(c - '0');
  }
  return negative ? 0 - value : value;
}

std::uint64_t ParseNumber(std::string_view text, unsigned base) {
  text = SkipSpace(text);
  const bool negative = TakeSign(text);
  if (base == 16 && text.size() > 1 && text[0] == '0' && ToLower(text[1]) == 'x') {
    text.remove_prefix(2);
  }
  std::uint64_t value = 0;
  for (const char c : text) {
    const unsigned digit = DigitValue(c);
    if (digit >= base) break;
    value = value * base + digit;
  }
  return negative ? 0 - value : value;
}

std::uint64_t ContentValue(std::string_view content) {
  const bool hexadecimal = content.find_first_of("xX") != std::string_view::npos;
  return ParseNumber(content, hexadecimal ? 16 : 10);
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  if (a == b) return true;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (ToLower(a[i]) != ToLower(b[i])) return false;
  }
  return true;
}

std::uint32_t CaselessHash(std::string_view text) {
  // Setting bit 5 makes letters of both cases one; that some other characters meet too costs a
  // comparison at most.
  constexpr std::uint64_t kCaseBits = 0x2020202020202020;
  constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  const auto mix = [](std::uint64_t hash, std::uint64_t word) {
    hash = (hash ^ (word | kCaseBits)) * kMultiplier;
    return hash ^ (hash >> 32);
  };
  const auto load = [](const char* from, std::size_t bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, from, bytes);
    return word;
  };
  // Two at a time do not wait for each other.
  std::uint64_t even = text.size();
  std::uint64_t odd = kMultiplier;
  const char* at = text.data();
  std::size_t left = text.size();
  for (; left >= 2 * kWord; left -= 2 * kWord, at += 2 * kWord) {
    even = mix(even, load(at, kWord));
    odd = mix(odd, load(at + kWord, kWord));
  }
  if (left >= kWord) {
    even = mix(even, load(at, kWord));
    left -= kWord;
    at += kWord;
  }
  if (left > 0) odd = mix(odd, load(at, left));
  return static_cast<std::uint32_t>(mix(even, odd));
}

}  // namespace merovane::nvproject
