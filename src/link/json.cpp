#include "link/json.h"

#include <array>
#include <charconv>

namespace merovane {
namespace {

// The bytes of the UTF-8 character at the text's head, 0 when there is none.
std::size_t CharacterBytes(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t bytes = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < bytes) return 0;
  for (std::size_t i = 1; i < bytes; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Longer than need be, a half of a UTF-16 pair, or beyond the last character.
  const unsigned char second = byte(1);
  const bool wrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
                     (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
  return wrong ? 0 : bytes;
}

void AppendEscaped(std::string& text, unsigned char character) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  text += "\\u00";
  text += kDigits[character >> 4];
  text += kDigits[character & 0xF];
}

}  // namespace

JsonWriter& JsonWriter::Key(std::string_view name) {
  Separate();
  Quote(name);
  text_ += ':';
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::Text(std::string_view value) {
  Separate();
  Quote(value);
  return *this;
}

JsonWriter& JsonWriter::Number(std::int64_t value) {
  Separate();
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
  text_.append(digits.begin(), end);
  return *this;
}

JsonWriter& JsonWriter::Flag(bool value) {
  Separate();
  text_ += value ? "true" : "false";
  return *this;
}

JsonWriter& JsonWriter::Null() {
  Separate();
  text_ += "null";
  return *this;
}

JsonWriter& JsonWriter::Open(char bracket) {
  Separate();
  text_ += bracket;
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::Close(char bracket) {
  text_ += bracket;
  first_ = false;
  return *this;
}

void JsonWriter::Separate() {
  if (!first_) text_ += ',';
  first_ = false;
}

void JsonWriter::Quote(std::string_view value) {
  text_ += '"';
  while (!value.empty()) {
    const auto character = static_cast<unsigned char>(value.front());
    const std::size_t bytes = CharacterBytes(value);
    if (character == '"' || character == '\\') {
      text_ += '\\';
      text_ += value.front();
    } else if (character < 0x20 || bytes == 0) {
      AppendEscaped(text_, character);
    } else {
      text_ += value.substr(0, bytes);
      value.remove_prefix(bytes - 1);
    }
    value.remove_prefix(1);
  }
  text_ += '"';
}

}  // namespace merovane
