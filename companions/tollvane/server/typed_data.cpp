#include "typed_data.h"

#include <charconv>

namespace channel_server {

namespace {

constexpr std::string_view kTextPrefix = "text:";

// Takes two hex digits off the front.
std::optional<std::byte> TakeHexByte(std::string_view& text) {
  if (text.size() < 2) return std::nullopt;
  unsigned char value = 0;
  const char* const end = text.data() + 2;
  const auto parsed = std::from_chars(text.data(), end, value, 16);
  if (parsed.ec != std::errc() || parsed.ptr != end) return std::nullopt;
  text.remove_prefix(2);
  return std::byte{value};
}

std::optional<std::byte> TakeEscape(std::string_view& text) {
  if (text.empty()) return std::nullopt;
  const char kind = text.front();
  text.remove_prefix(1);
  switch (kind) {
    case 'r':
      return std::byte{'\r'};
    case 'n':
      return std::byte{'\n'};
    case 't':
      return std::byte{'\t'};
    case '0':
      return std::byte{0};
    case '\\':
      return std::byte{'\\'};
    case 'x':
      return TakeHexByte(text);
    default:
      return std::nullopt;
  }
}

std::optional<std::vector<std::byte>> ParseText(std::string_view text) {
  std::vector<std::byte> data;
  while (!text.empty()) {
    const char character = text.front();
    text.remove_prefix(1);
    if (character != '\\') {
      data.push_back(static_cast<std::byte>(character));
      continue;
    }
    const auto escaped = TakeEscape(text);
    if (!escaped) return std::nullopt;
    data.push_back(*escaped);
  }
  return data;
}

std::optional<std::vector<std::byte>> ParseHex(std::string_view text) {
  std::vector<std::byte> data;
  while (!text.empty()) {
    if (text.front() == ' ' || text.front() == '\t') {
      text.remove_prefix(1);
      continue;
    }
    const auto value = TakeHexByte(text);
    if (!value) return std::nullopt;
    data.push_back(*value);
  }
  return data;
}

}  // namespace

std::optional<std::vector<std::byte>> ParseTypedData(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (line.starts_with(kTextPrefix)) return ParseText(line.substr(kTextPrefix.size()));
  return ParseHex(line);
}

}  // namespace channel_server
