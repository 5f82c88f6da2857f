#include "nvproject/item_store.h"

#include <algorithm>
#include <utility>

#include "nvproject/text_rules.h"

namespace merovane::nvproject {
namespace {

// Beyond these it is cheaper to look at every item than to keep a list.
constexpr std::size_t kMaxNotedChanges = 4096;

}  // namespace

void ItemStore::BeginModule() { modules_.push_back({items_.Size(), 0}); }

void ItemStore::Append(Item item) {
  if (static_cast<std::uint32_t>(item.index) != modules_.back().count) orderly_ = false;
  item.pathHash = CaselessHash(item.fullPath);
  items_.Append(std::move(item));
  ++modules_.back().count;
  ++structureRevision_;
  ++pathRevision_;
}

std::uint32_t ItemStore::Find(std::string_view path) {
  if (indexedRevision_ != pathRevision_) {
    index_.Build(items_);
    indexedRevision_ = pathRevision_;
  }
  return index_.Find(items_, path);
}

std::uint32_t ItemStore::FindExact(std::string_view path) {
  const std::uint32_t first = Find(path);
  if (first == kNoItem) return kNoItem;
  // Paths that differ in letter case only are rare: look on from the first of them.
  for (std::uint32_t i = first; i < items_.Size(); ++i) {
    if (items_[i].fullPath == path) return i;
  }
  return kNoItem;
}

void ItemStore::SetContent(std::uint32_t position, std::string_view content) {
  content = content.substr(0, kMaxText);
  ++contentRevision_;
  const Item& item = items_[position];
  const std::uint32_t target = WriteBackPosition(ModuleOf(position), item.index);
  if (target == kNoItem) return;
  if (target != position) {
    Item changed = item;
    changed.content = content;
    Replace(target, std::move(changed));
  } else if (item.content != content) {
    items_[position].content = content;
    NoteContentChange(position);
  }
}

void ItemStore::SetPlace(const Module& module, std::uint32_t position, std::uint32_t offset,
                         std::uint32_t length) {
  Item& item = items_[position];
  const std::uint32_t target = WriteBackPosition(module, item.index);
  if (target == kNoItem) return;
  if (target != position) {
    Item changed = item;
    changed.offset = offset;
    changed.length = length;
    Replace(target, std::move(changed));
  } else if (item.offset != offset || item.length != length) {
    item.offset = offset;
    item.length = length;
    ++structureRevision_;
  }
}

void ItemStore::StoreBack(const Module& module, Item record) {
  const std::uint32_t target = WriteBackPosition(module, record.index);
  if (target != kNoItem) Replace(target, std::move(record));
}

void ItemStore::Replace(std::uint32_t position, Item item) {
  Item& old = items_[position];
  if (old == item) return;
  ++structureRevision_;
  if (old.fullPath != item.fullPath) ++pathRevision_;
  old = std::move(item);
}

const ItemStore::Module& ItemStore::ModuleOf(std::uint32_t position) const {
  const auto next = std::upper_bound(
      modules_.begin(), modules_.end(), position,
      [](std::uint32_t at, const Module& module) { return at < module.first + module.count; });
  return *next;
}

std::uint32_t ItemStore::WriteBackPosition(const Module& module, std::int32_t index) {
  const auto at = static_cast<std::uint32_t>(index);
  return index >= 0 && at < module.count ? module.first + at : kNoItem;
}

void ItemStore::NoteContentChange(std::uint32_t position) {
  if (contentChanges_.items.size() < kMaxNotedChanges) {
    contentChanges_.items.push_back(position);
  } else {
    contentChanges_.tooMany = true;
  }
}

ContentChanges ItemStore::TakeContentChanges() { return std::exchange(contentChanges_, {}); }

}  // namespace merovane::nvproject
