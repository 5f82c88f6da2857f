// All items of a project, in load order, with the rules of how a changed item is written back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "nvproject/item_list.h"
#include "nvproject/path_index.h"
#include "nvproject/text_arena.h"

namespace merovane::nvproject {

// Contents that changed since somebody last asked.
struct ContentChanges {
  bool tooMany = false;              // more than are noted one by one
  std::vector<std::uint32_t> items;  // may name an item twice
};

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
  TextArena& Texts() { return texts_; }

  const ItemList& Items() const { return items_; }
  const Item& operator[](std::uint32_t position) const { return items_[position]; }
  std::span<const Module> Modules() const { return modules_; }

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

  // Whether every item stands where its index says, so that writing one back touches no other.
  bool IsOrderly() const { return orderly_; }

  // Grows with every change of anything but contents.
  std::uint64_t StructureRevision() const { return structureRevision_; }
  // Grows whenever a path may lead to another item than before. Never 0.
  std::uint64_t PathRevision() const { return pathRevision_; }
  // Grows with every content that is set.
  std::uint64_t ContentRevision() const { return contentRevision_; }
  // The contents that changed since the last call, those aside that came with a change of
  // structure.
  ContentChanges TakeContentChanges();

 private:
  const Module& ModuleOf(std::uint32_t position) const;
  // Where an item of that index is stored in the module, or kNoItem.
  static std::uint32_t WriteBackPosition(const Module& module, std::int32_t index);
  // Puts an item in place of another one.
  void Replace(std::uint32_t position, Item item);
  void NoteContentChange(std::uint32_t position);

  ItemList items_;
  std::vector<Module> modules_;
  TextArena texts_;
  PathIndex index_;
  bool orderly_ = true;
  std::uint64_t indexedRevision_ = 0;
  std::uint64_t structureRevision_ = 1;
  std::uint64_t pathRevision_ = 1;
  std::uint64_t contentRevision_ = 0;
  ContentChanges contentChanges_;
};

}  // namespace merovane::nvproject
