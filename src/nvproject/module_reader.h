// Reads module files.
#pragma once

#include "nvproject/item_store.h"
#include "nvproject/key_reader.h"

namespace merovane::nvproject {

// Appends the file's items to the store, as a module of its own, and fills in the record's name and
// description.
void ReadModule(KeyReader& lines, ModuleRecord& module, ItemStore& items);

}  // namespace merovane::nvproject
