// Where a handset keeps its serial numbers.
#pragma once

#include <algorithm>
#include <string_view>

namespace merovane {

enum class SerialNumberLayout { FlashItem, ProductionBlock };

// The layout that the setting names, in capitals or not, for handsets that have none yet.
inline SerialNumberLayout LayoutNamed(std::string_view name) {
  constexpr std::string_view kProductionBlock = "QV09";
  const bool equal = std::ranges::equal(name, kProductionBlock, {}, [](char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
  });
  return equal ? SerialNumberLayout::ProductionBlock : SerialNumberLayout::FlashItem;
}

}  // namespace merovane
