// Reads a module file into a module record and items.
#pragma once

#include <string>
#include <string_view>

#include "nvproject/full_path.h"
#include "nvproject/item.h"
#include "nvproject/item_store.h"
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
  void TakeValue(std::string_view key, std::string_view value, ModuleRecord& module);
  void BeginItem();
  void EndItem();

  LineReader& lines_;
  ItemStore& items_;
  ParentIndex parents_;
  FullPathBuilder fullPath_;
  // The item under construction. A key changes it wherever it stands; its texts but the content are
  // kept beside it.
  Item item_;
  std::string name_;
  std::string description_;
};

}  // namespace merovane::nvproject
