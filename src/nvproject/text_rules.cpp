#include "nvproject/text_rules.h"

#include <array>
#include <charconv>
#include <cstring>

#include "platform/ascii.h"
#include "platform/files.h"

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

// The number that a text begins with, taken apart.
struct Number {
  Number(std::string_view text, unsigned base) : rest(SkipSpace(text)) {
    negative = TakeSign(rest);
    if (base == 16 && rest.size() > 1 && rest[0] == '0' && ToLower(rest[1]) == 'x') {
      rest.remove_prefix(2);
    }
    for (; !rest.empty() && DigitValue(rest.front()) < base; rest.remove_prefix(1)) {
      digits = true;
      tooLarge = tooLarge || magnitude > UINT64_MAX / 16;
      magnitude = magnitude * base + DigitValue(rest.front());
    }
  }

  std::string_view rest;
  bool negative = false;
  bool digits = false;
  bool tooLarge = false;  // for the magnitude, which keeps its low 64 bits
  std::uint64_t magnitude = 0;
};

unsigned BaseOf(std::string_view content) {
  // Contents are short: a search through the library takes longer to begin.
  for (const char c : content) {
    if (c == 'x' || c == 'X') return 16;
  }
  return 10;
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
  const Number number(text, base);
  return number.negative ? 0 - number.magnitude : number.magnitude;
}

std::uint64_t ContentValue(std::string_view content) {
  return ParseNumber(content, BaseOf(content));
}

bool IsNumberOf(std::string_view content, std::uint32_t bytes) {
  const Number number(content, BaseOf(content));
  const std::uint64_t limit = std::uint64_t{1} << (8 * bytes);
  const bool fits = number.negative ? number.magnitude <= limit / 2 : number.magnitude < limit;
  const bool whole = number.rest.empty() || number.rest == "x" || number.rest == "X";
  return number.digits && whole && fits && !number.tooLarge;
}

std::string HexText(HexForm form, std::uint32_t value) {
  std::array<char, 8> digits;
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16).ptr;
  if (form == HexForm::UpperUpper) {
    for (char* at = digits.data(); at != end; ++at) {
      if (*at >= 'a') *at = static_cast<char>(*at - 'a' + 'A');
    }
  }
  return std::string(form == HexForm::LowerLower ? "0x" : "0X").append(digits.data(), end);
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

std::optional<std::string> JoinPath(std::string_view file, std::string_view path) {
  if (platform::IsAbsolutePath(path)) return std::string(path);
  const std::size_t separator = file.find_last_of(kSeparators);
  if (separator == std::string_view::npos) return std::nullopt;
  return std::string(file.substr(0, separator + 1)).append(path);
}

}  // namespace merovane::nvproject
