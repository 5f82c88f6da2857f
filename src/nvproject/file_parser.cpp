#include "nvproject/file_parser.h"

#include <utility>

#include "nvproject/block_conversion.h"

namespace merovane::nvproject {

CFileParser::CFileParser(OpenText openText)
    : openText_(std::move(openText)), calibration_(items_, areoSpelling_) {}

bool CFileParser::GetItemContent(std::uint32_t /*module*/, std::string_view path,
                                 std::string* content) {
  const std::uint32_t item = items_.Find(path);
  if (item == kNoItem) return false;
  if (content != nullptr) *content = items_[item].content;
  return true;
}

bool CFileParser::SetItemContent(std::uint32_t /*module*/, std::string_view path,
                                 std::string_view content) {
  const std::uint32_t item = items_.Find(path);
  if (item == kNoItem) return false;
  items_.SetContent(item, content);
  return true;
}

void CFileParser::GetItemArray(std::string_view prefix, std::span<std::int16_t> values,
                               IndexNotation first, std::uint32_t /*module*/) {
  ItemArray(std::string(prefix), values.size(), first).Read(items_, values);
}

void CFileParser::SetItemArray(std::string_view prefix, std::span<const std::int16_t> values,
                               IndexNotation first, std::uint32_t /*module*/) {
  ItemArray(std::string(prefix), values.size(), first).Write(items_, values);
}

void CFileParser::LayoutItems() { layout_.Run(items_, imageStart_); }

std::optional<std::uint32_t> CFileParser::ItemOffset(std::string_view path) {
  LayoutItems();
  const std::uint32_t item = items_.FindExact(path);
  if (item == kNoItem) return std::nullopt;
  return items_[item].offset;
}

void CFileParser::ConvertBlock(std::string_view path, std::span<std::uint8_t> data) {
  LayoutItems();
  nvproject::ConvertBlock(items_, path, data);
}

}  // namespace merovane::nvproject
