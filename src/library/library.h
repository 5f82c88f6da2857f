// What exists once per process, from the loading of this library to its unloading.
#pragma once

#include "library/session_registry.h"
#include "link/link_environment.h"

namespace merovane::library {

struct Library {
  Library();
  ~Library();

  LinkEnvironment environment;
  SessionRegistry registry;
};

Library& TheLibrary();

}  // namespace merovane::library
