// What exists once per process, from the loading of this library to its unloading.
#pragma once

#include "library/session_registry.h"
#include "link/settings.h"

namespace merovane::library {

struct Library {
  Library();
  ~Library();

  LinkSettings settings;
  SessionRegistry registry;
};

Library& TheLibrary();

}  // namespace merovane::library
