#include "library/library.h"

#include "library/session.h"
#include "platform/files.h"

namespace merovane::library {

Library::Library() : environment(platform::ExecutableDirectory()) {}

Library::~Library() { CloseAll(*this); }

Library& TheLibrary() {
  static Library library;
  return library;
}

namespace {

// The settings are read, and the channel server is connected, when the library is loaded.
[[maybe_unused]] const Library& loaded = TheLibrary();

}  // namespace
}  // namespace merovane::library
