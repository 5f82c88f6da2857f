#include "nvproject/path_index.h"

#include <bit>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

std::size_t PathIndex::Probe(std::span<const Item> items, std::string_view path,
                             std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].item != kNoItem &&
         (slots_[at].hash != hash || !EqualsIgnoringCase(items[slots_[at].item].fullPath, path))) {
    at = (at + 1) & mask;
  }
  return at;
}

void PathIndex::Build(std::span<const Item> items) {
  slots_.assign(std::bit_ceil(items.size() + items.size() / 2 + 1), Slot{});
  for (std::uint32_t i = 0; i < items.size(); ++i) {
    const std::uint32_t hash = CaselessHash(items[i].fullPath);
    Slot& slot = slots_[Probe(items, items[i].fullPath, hash)];
    // A path that is there already belongs to an earlier item, which answers for it.
    if (slot.item == kNoItem) slot = {hash, i};
  }
}

std::uint32_t PathIndex::Find(std::span<const Item> items, std::string_view path) const {
  if (slots_.empty()) return kNoItem;
  return slots_[Probe(items, path, CaselessHash(path))].item;
}

}  // namespace merovane::nvproject
