#include "hex_dump.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace channel_server {

namespace {

constexpr std::size_t kBytesPerLine = 16;

template <typename... Values>
void Append(std::string& text, const char* format, Values... values) {
  std::array<char, 16> piece;
  std::snprintf(piece.data(), piece.size(), format, values...);
  text += piece.data();
}

}  // namespace

std::string HexDump(std::span<const std::byte> data) {
  std::string dump;
  for (std::size_t offset = 0; offset < data.size(); offset += kBytesPerLine) {
    const auto line = data.subspan(offset, std::min(kBytesPerLine, data.size() - offset));
    Append(dump, "  %04x ", static_cast<unsigned>(offset));
    std::string characters;
    for (std::size_t i = 0; i < kBytesPerLine; ++i) {
      if (i == kBytesPerLine / 2) dump += ' ';
      if (i >= line.size()) {
        dump += "   ";
        continue;
      }
      const auto value = std::to_integer<unsigned char>(line[i]);
      Append(dump, " %02x", static_cast<unsigned>(value));
      characters += value >= 0x20 && value < 0x7F ? static_cast<char>(value) : '.';
    }
    dump += "  |" + characters + "|\n";
  }
  return dump;
}

}  // namespace channel_server
