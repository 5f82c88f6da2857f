#include "nvproject/item_store.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {

void ItemStore::BeginModule() { modules_.push_back({size_, 0}); }

void ItemStore::Append(Item item) {
  item.pathHash = CaselessHash(item.fullPath);
  if (size_ % kBlockItems == 0) {
    blocks_.emplace_back();
    blocks_.back().reserve(kBlockItems);
  }
  blocks_.back().push_back(std::move(item));
  ++size_;
  ++modules_.back().count;
  ++pathRevision_;
}

std::string_view ItemStore::Keep(std::string_view text) {
  assert(text.size() <= kTextBlockBytes);
  if (text.empty()) return {};
  if (text.size() > kTextBlockBytes - textsUsed_) {
    texts_.push_back(std::unique_ptr<char[]>(new char[kTextBlockBytes]));
    textsUsed_ = 0;
  }
  char* const place = texts_.back().get() + textsUsed_;
  std::memcpy(place, text.data(), text.size());
  textsUsed_ += text.size();
  return {place, text.size()};
}

std::size_t ItemStore::ModuleNumberOf(std::uint32_t position) const {
  const auto next = std::upper_bound(
      modules_.begin(), modules_.end(), position,
      [](std::uint32_t at, const Module& module) { return at < module.first + module.count; });
  return static_cast<std::size_t>(next - modules_.begin());
}

std::uint32_t ItemStore::Find(std::string_view path) {
  if (size_ == 0) return kNoItem;
  if (indexedRevision_ != pathRevision_) BuildIndex();
  return slots_[Probe(path, CaselessHash(path))].item;
}

std::uint32_t ItemStore::FindExact(std::string_view path) {
  const std::uint32_t first = Find(path);
  if (first == kNoItem) return kNoItem;
  // Paths that differ in letter case only are rare: look on from the first of them.
  for (std::uint32_t i = first; i < size_; ++i) {
    if ((*this)[i].fullPath == path) return i;
  }
  return kNoItem;
}

void ItemStore::BuildIndex() {
  slots_.assign(std::bit_ceil(std::size_t{size_} + size_ / 2 + 1), Slot{});
  for (std::uint32_t i = 0; i < size_; ++i) {
    // Slots are anywhere in memory: those of items to come are fetched ahead.
    constexpr std::uint32_t kAhead = 8;
    if (i + kAhead < size_) {
      __builtin_prefetch(&slots_[(*this)[i + kAhead].pathHash & (slots_.size() - 1)], 1);
    }
    const Item& item = (*this)[i];
    Slot& slot = slots_[Probe(item.fullPath, item.pathHash)];
    // A path that is there already belongs to an earlier item, which answers for it.
    if (slot.item == kNoItem) slot = {item.pathHash, i};
  }
  indexedRevision_ = pathRevision_;
}

std::size_t ItemStore::Probe(std::string_view path, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (
      slots_[at].item != kNoItem &&
      (slots_[at].hash != hash || !EqualsIgnoringCase((*this)[slots_[at].item].fullPath, path))) {
    at = (at + 1) & mask;
  }
  return at;
}

void ItemStore::SetContent(std::uint32_t position, std::string_view content) {
  content = content.substr(0, kMaxText);
  Item& item = At(position);
  const std::uint32_t target = WriteBackPosition(modules_[ModuleNumberOf(position)], item.index);
  if (target == kNoItem) return;
  if (target == position) {
    changed_ = changed_ || item.content != content;
    item.content = content;
  } else {
    Item changed = item;
    changed.content = content;
    changed_ = true;
    Replace(target, std::move(changed));
  }
}

void ItemStore::SetPlace(const Module& module, std::uint32_t position, std::uint32_t offset,
                         std::uint32_t length) {
  Item& item = At(position);
  if (WriteBackPosition(module, item.index) == position) {
    item.offset = offset;
    item.length = length;
  } else {
    Item changed = item;
    changed.offset = offset;
    changed.length = length;
    StoreBack(module, std::move(changed));
  }
}

void ItemStore::StoreBack(const Module& module, Item record) {
  const std::uint32_t target = WriteBackPosition(module, record.index);
  if (target != kNoItem) Replace(target, std::move(record));
}

void ItemStore::Replace(std::uint32_t position, Item item) {
  Item& old = At(position);
  if (old.fullPath != item.fullPath) ++pathRevision_;
  old = std::move(item);
}

std::uint32_t ItemStore::WriteBackPosition(const Module& module, std::int32_t index) {
  const auto at = static_cast<std::uint32_t>(index);
  return index >= 0 && at < module.count ? module.first + at : kNoItem;
}

}  // namespace merovane::nvproject
