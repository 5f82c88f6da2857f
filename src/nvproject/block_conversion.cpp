#include "nvproject/block_conversion.h"

#include <algorithm>

namespace merovane::nvproject {

void ConvertBlock(ItemStore& items, std::string_view path, std::span<std::uint8_t> data) {
  const std::uint32_t first = items.FindExact(path);
  if (first == kNoItem) return;
  std::uint32_t expectedOffset = items[first].offset;
  for (std::uint32_t i = first; i < items.Items().Size() && !data.empty(); ++i) {
    const Item& item = items[i];
    if (item.offset != expectedOffset) continue;
    const std::uint32_t width = std::max(ScalarWidth(item.type), 1U);
    if (width > data.size()) return;
    std::ranges::reverse(data.first(width));
    data = data.subspan(width);
    expectedOffset += width;
  }
}

}  // namespace merovane::nvproject
