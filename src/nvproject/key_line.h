// A line of a project or module file, taken apart.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

struct KeyLine {
  std::string_view key;
  // All that follows the first "=", the line end included; none without an "=".
  std::optional<std::string_view> value;
};

// Empty lines and comments have no key.
inline KeyLine SplitLine(std::string_view line) {
  const std::size_t start = line.find_first_not_of(' ');
  if (start == std::string_view::npos || line[start] == '#' || line[start] == '\n') return {};
  KeyLine result;
  result.key = FirstWord(line.substr(start));
  const std::size_t equals = line.find('=');
  if (equals != std::string_view::npos) result.value = line.substr(equals + 1);
  return result;
}

// Puts the value's first word into the field, cut to fit; a value without one leaves the field as
// it was.
inline void TakeWord(std::string_view value, std::size_t maxLength, std::string& field) {
  const std::string_view word = FirstWord(value);
  if (!word.empty()) field = word.substr(0, maxLength);
}

// Puts the value's number into the field; a value without one leaves the field as it was.
template <class Number>
void TakeNumber(std::string_view value, Number& field) {
  if (const auto number = ScanDecimal(value)) field = static_cast<Number>(*number);
}

}  // namespace merovane::nvproject
