// All items of a project, in load order, and the rules of finding one and of writing it back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "nvproject/item.h"

namespace merovane::nvproject {

// Items are named by their position among all items of all modules. An item that changes is stored
// at the position, in its module, that its own index names: when that is another item's position,
// that item is replaced and the changed one stays as it was; when there is no such position,
// nothing is stored.
class ItemStore {
 public:
  struct Module {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
  };

  void BeginModule();
  // Appends to the last module.
  void Append(Item item);
  // A copy of a text for an item's fields, which lives as long as the store.
  std::string_view Keep(std::string_view text);

  std::uint32_t Size() const { return size_; }
  const Item& operator[](std::uint32_t position) const {
    return blocks_[position / kBlockItems][position % kBlockItems];
  }
  std::span<const Module> Modules() const { return modules_; }
  // The number of the module that has the item.
  std::size_t ModuleNumberOf(std::uint32_t position) const;

  // The first item of that path in load order, or kNoItem: letter case ignored, or counted.
  std::uint32_t Find(std::string_view path);
  std::uint32_t FindExact(std::string_view path);

  // Writes an item back with another content, cut to what a content holds.
  void SetContent(std::uint32_t position, std::string_view content);
  // Writes an item back with other figures of the layout.
  void SetPlace(const Module& module, std::uint32_t position, std::uint32_t offset,
                std::uint32_t length);
  // Stores a record that was copied before at the position that its index names, whatever stands
  // there now.
  void StoreBack(const Module& module, Item record);

  // Grows whenever a path may lead to another item than before. Never 0.
  std::uint64_t PathRevision() const { return pathRevision_; }

  // Whether contents have changed since the last MarkSaved.
  bool Changed() const { return changed_; }
  void MarkSaved() { changed_ = false; }

 private:
  // Projects can be large: a list that doubles touches twice the memory.
  static constexpr std::uint32_t kBlockItems = 256;
  static constexpr std::size_t kTextBlockBytes = 32768;

  // A slot of the index of paths: for every path, the first item that bears it.
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t item = kNoItem;
  };

  Item& At(std::uint32_t position) {
    return blocks_[position / kBlockItems][position % kBlockItems];
  }
  // Where an item of that index is stored in the module, or kNoItem.
  static std::uint32_t WriteBackPosition(const Module& module, std::int32_t index);
  // Puts an item in place of another one.
  void Replace(std::uint32_t position, Item item);

  void BuildIndex();
  // The slot that holds the path, or the free one where it belongs.
  std::size_t Probe(std::string_view path, std::uint32_t hash) const;

  std::vector<std::vector<Item>> blocks_;
  std::uint32_t size_ = 0;
  std::vector<Module> modules_;
  std::vector<std::unique_ptr<char[]>> texts_;
  std::size_t textsUsed_ = kTextBlockBytes;  // of the last block

  std::vector<Slot> slots_;  // open addressing; the size is a power of two
  std::uint64_t indexedRevision_ = 0;
  std::uint64_t pathRevision_ = 1;
  bool changed_ = false;
};

}  // namespace merovane::nvproject
