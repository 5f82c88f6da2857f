// Letters and digits of ASCII, whatever the locale.
#pragma once

namespace merovane::platform {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr char ToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

// The value of a digit of the bases up to 16, or one that no base has.
constexpr unsigned DigitValue(char c) {
  if (IsDigit(c)) return static_cast<unsigned>(c - '0');
  c = ToLower(c);
  return c >= 'a' && c <= 'f' ? static_cast<unsigned>(c - 'a') + 10 : 255;
}

}  // namespace merovane::platform
