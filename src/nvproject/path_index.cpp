#include "nvproject/path_index.h"

#include <bit>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

std::size_t PathIndex::Probe(const ItemList& items, std::string_view path,
                             std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].item != kNoItem &&
         (slots_[at].hash != hash || !EqualsIgnoringCase(items[slots_[at].item].fullPath, path))) {
    at = (at + 1) & mask;
  }
  return at;
}

void PathIndex::Build(const ItemList& items) {
  slots_.assign(std::bit_ceil(std::size_t{items.Size()} + items.Size() / 2 + 1), Slot{});
  for (std::uint32_t i = 0; i < items.Size(); ++i) {
    // Slots are anywhere in memory: those of items to come are fetched ahead.
    constexpr std::uint32_t kAhead = 8;
    if (i + kAhead < items.Size()) {
      __builtin_prefetch(&slots_[items[i + kAhead].pathHash & (slots_.size() - 1)], 1);
    }
    const Item& item = items[i];
    Slot& slot = slots_[Probe(items, item.fullPath, item.pathHash)];
    // A path that is there already belongs to an earlier item, which answers for it.
    if (slot.item == kNoItem) slot = {item.pathHash, i};
  }
}

std::uint32_t PathIndex::Find(const ItemList& items, std::string_view path) const {
  if (slots_.empty()) return kNoItem;
  return slots_[Probe(items, path, CaselessHash(path))].item;
}

}  // namespace merovane::nvproject
