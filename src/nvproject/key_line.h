// A line of a project or module file, taken apart.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

class KeyLine {
 public:
  // Empty lines and comments, both after any blanks, have no key.
  explicit KeyLine(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && line[start] == ' ') ++start;
    line.remove_prefix(start);
    if (!line.empty() && line.front() != '#') rest_ = SkipSpace(line);
  }

  bool HasKey() const { return !rest_.empty(); }

  // Whether the line's first word, which white space ends, is this key.
  bool HasKey(std::string_view key) const {
    return rest_.starts_with(key) && (rest_.size() == key.size() || IsSpace(rest_[key.size()]));
  }

  // All that follows the first "=", the line end included, in a line of that key; none without an
  // "=".
  std::optional<std::string_view> ValueOf(std::string_view key) const {
    // Mostly only blanks stand before the "=": that is sooner found than searched for.
    std::size_t equals = key.size();
    while (equals < rest_.size() && rest_[equals] == ' ') ++equals;
    if (equals < rest_.size() && rest_[equals] != '=') equals = rest_.find('=', equals);
    if (equals >= rest_.size()) return std::nullopt;
    return rest_.substr(equals + 1);
  }

 private:
  std::string_view rest_;
};

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
