// Turns a block of binary item data into the other byte order.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "nvproject/item_store.h"

namespace merovane::nvproject {

// Reverses the bytes of each value in `data`, which begins with the item of that path (letter case
// counts). The items are laid out. Only values that lie without a gap behind one another take part:
// each run between padding is a conversion of its own. Starting at a structure or an array counts
// as one byte for the structure itself, so data converted right begins at a scalar; one inside the
// run counts as a byte as well when its alignment happens to be the offset that is due. A value
// that does not fit into the block whole is left as it is, and all behind it. An unknown path
// changes nothing.
void ConvertBlock(ItemStore& items, std::string_view path, std::span<std::uint8_t> data);

}  // namespace merovane::nvproject
