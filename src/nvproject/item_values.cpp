#include "nvproject/item_values.h"

#include <array>
#include <charconv>
#include <utility>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {
namespace {

std::string IndexName(std::size_t index, IndexNotation notation) {
  const bool decimal = notation == IndexNotation::Decimal;
  std::array<char, 20> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), index, decimal ? 10 : 16).ptr;
  return std::string(decimal ? "[" : "[0x").append(digits.data(), end).append("]");
}

}  // namespace

ItemArray::ItemArray(std::string prefix, std::size_t count, IndexNotation first)
    : prefix_(std::move(prefix)), count_(count), first_(first) {}

void ItemArray::Locate(ItemStore& items) {
  if (locatedRevision_ == items.PathRevision()) return;
  const IndexNotation other =
      first_ == IndexNotation::Decimal ? IndexNotation::Hexadecimal : IndexNotation::Decimal;
  elements_.resize(count_);
  for (std::size_t k = 0; k < count_; ++k) {
    elements_[k] = items.Find(prefix_ + IndexName(k, first_));
    if (elements_[k] == kNoItem) elements_[k] = items.Find(prefix_ + IndexName(k, other));
  }
  locatedRevision_ = items.PathRevision();
}

void ItemArray::Read(ItemStore& items, std::span<std::int16_t> values) {
  Locate(items);
  std::int16_t value = 0;
  for (std::size_t k = 0; k < count_; ++k) {
    if (elements_[k] != kNoItem) {
      value = static_cast<std::int16_t>(ContentValue(items[elements_[k]].content));
    }
    values[k] = value;
  }
}

void ItemArray::Write(ItemStore& items, std::span<const std::int16_t> values) {
  for (std::size_t k = 0; k < count_; ++k) {
    // A write can put an item in another's place, and with it other paths.
    Locate(items);
    if (elements_[k] == kNoItem) continue;
    // A negative value shows its low 16 bits.
    items.SetContent(elements_[k],
                     HexText(HexForm::UpperUpper, static_cast<std::uint16_t>(values[k])));
  }
}

std::vector<std::string> ItemArray::MissingPaths(ItemStore& items) {
  Locate(items);
  std::vector<std::string> paths;
  for (std::size_t k = 0; k < count_; ++k) {
    if (elements_[k] == kNoItem) paths.push_back(prefix_ + IndexName(k, first_));
  }
  return paths;
}

std::uint32_t ItemValue::Locate(ItemStore& items) {
  if (locatedRevision_ != items.PathRevision()) {
    item_ = items.Find(path_);
    locatedRevision_ = items.PathRevision();
  }
  return item_;
}

std::optional<std::string_view> ItemValue::Read(ItemStore& items) {
  const std::uint32_t item = Locate(items);
  if (item == kNoItem) return std::nullopt;
  return items[item].content;
}

void ItemValue::Write(ItemStore& items, std::string_view content) {
  const std::uint32_t item = Locate(items);
  if (item != kNoItem) items.SetContent(item, content);
}

}  // namespace merovane::nvproject
