// Reads a module file into a module record and items.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "nvproject/full_path.h"
#include "nvproject/item.h"
#include "nvproject/item_store.h"
#include "nvproject/key_line.h"
#include "nvproject/line_reader.h"
#include "nvproject/parent_index.h"

namespace merovane::nvproject {

class ModuleReader {
 public:
  // Appends the module's items to the store, as a module of its own.
  ModuleReader(LineReader& lines, ItemStore& items) : lines_(lines), items_(items) {}

  // Fills in the name and the description.
  void Read(ModuleRecord& module);

 private:
  enum class Key;

  Key FindKey(const KeyLine& line);
  void TakeValue(Key key, std::string_view value, ModuleRecord& module);
  void BeginItem();
  void EndItem();

  LineReader& lines_;
  ItemStore& items_;
  std::size_t nextKey_ = 0;
  ParentIndex parents_;
  FullPathBuilder fullPath_;
  // The item under construction. A key changes it wherever it stands; its texts but the content are
  // kept beside it.
  Item item_;
  std::string name_;
  std::string description_;
};

}  // namespace merovane::nvproject
