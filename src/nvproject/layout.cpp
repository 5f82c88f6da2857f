#include "nvproject/layout.h"

#include <algorithm>
#include <utility>

#include "nvproject/nv_image.h"

namespace merovane::nvproject {
namespace {

template <class Number>
constexpr Number RoundUp(Number value, std::uint32_t multiple) {
  return (value + multiple - 1) / multiple * multiple;
}

}  // namespace

void Layout::Run(ItemStore& items) {
  topLevel_.clear();
  std::uint64_t running = kImageStart;
  for (std::uint32_t number = 0; number < items.Modules().size(); ++number) {
    const ItemStore::Module module = items.Modules()[number];
    for (std::uint32_t position = 0; position < module.count;) {
      const Item& item = items[module.first + position];
      if (!item.IsTopLevel()) {
        ++position;
        continue;
      }
      Placed placed{position + 1, item.length};
      if (item.type == ItemType::Struct) {
        placed = PlaceStructure(items, module, position);
      } else if (item.type == ItemType::Array) {
        placed = PlaceArray(items, module, position);
      }
      const std::uint64_t offset = RoundUp(running, 4) + kRecordHeaderBytes;
      topLevel_.push_back(
          {module.first + position, number, static_cast<std::uint32_t>(offset), placed.length});
      running = offset + placed.length;
      position = placed.next;
    }
  }
}

// Structures nest as deep as files make them, so the open ones are kept here and not on the stack.
Layout::Placed Layout::PlaceStructure(ItemStore& items, const ItemStore::Module& module,
                                      std::uint32_t position) {
  std::uint32_t at = 0;  // in the top-level item's data
  const auto open = [&](const Item& record) { open_.push_back({position, record.offset, record}); };
  open_.clear();
  open(items[module.first + position]);
  for (++position; !open_.empty();) {
    OpenStructure& structure = open_.back();
    if (position == module.count ||
        items[module.first + position].parent < static_cast<std::int64_t>(structure.position)) {
      if (structure.alignment == 2 || structure.alignment == 4) {
        at = RoundUp(at, structure.alignment);
      }
      structure.record.offset = structure.alignment;
      structure.record.length = at;
      items.StoreBack(module, std::move(structure.record));
      open_.pop_back();
      continue;
    }
    const Item& member = items[module.first + position];
    const std::uint32_t width = ScalarWidth(member.type);
    if (width > 0) {
      at = RoundUp(at, width);
      structure.alignment = width == 4 ? 4 : std::max(structure.alignment, width);
      items.SetPlace(module, module.first + position, at, member.length);
      at += width;
    } else if (member.type == ItemType::Struct || member.type == ItemType::Array) {
      open(member);
    }
    ++position;
  }
  return {position, at};
}

Layout::Placed Layout::PlaceArray(ItemStore& items, const ItemStore::Module& module,
                                  std::uint32_t position) {
  // As it is now: an element of the same index takes its place meanwhile.
  Item array = items[module.first + position];
  // The size is a number in a file: there need not be so many items.
  const std::uint32_t next = position + 1 + std::min(array.size, module.count - position - 1);
  std::uint32_t at = 0;
  std::uint32_t lastLength = 0;
  for (std::uint32_t i = position + 1; i < next; ++i) {
    const Item& element = items[module.first + i];
    const std::uint32_t width = ScalarWidth(element.type);
    lastLength = element.length;
    if (width > 0) at = RoundUp(at, width);
    items.SetPlace(module, module.first + i, width > 0 ? at : element.offset, element.length);
    at += width;
  }
  const std::uint32_t length = lastLength * array.size;
  array.length = length;
  items.StoreBack(module, std::move(array));
  return {next, length};
}

}  // namespace merovane::nvproject
