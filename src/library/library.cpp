#include "library/library.h"

#include "library/session.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace merovane::library {

Library::Library() : environment(platform::ExecutableDirectory()) {
  environment.logObserver = &recorder;
  SetTraceFromSettings();
}

Library::~Library() {
  CloseAll(*this);
  environment.logObserver = nullptr;
}

void Library::SetTraceFromSettings() {
  recorder.SetFolder(environment.settings.Folder());
  recorder.SetTraceAtLoad(TraceOfSetting(environment.settings.trace));
}

SessionRegistry::PhonePointer Library::MakePhone() {
  {
    const platform::MutexLock lock(folderMutex_);
    folderStays_ = true;
  }
  return std::make_shared<PhoneObject>(environment);
}

bool Library::SetFolder(const std::filesystem::path& folder) {
  const platform::MutexLock lock(folderMutex_);
  if (folderStays_) return false;
  environment.ReadSettings(folder);
  SetTraceFromSettings();
  return true;
}

Library& TheLibrary() {
  // Made first, so that it is still there when the library closes its ports as the process ends.
  platform::SystemClock();
  static Library library;
  return library;
}

namespace {

// The settings are read, and the channel server is connected, when the library is loaded.
[[maybe_unused]] const Library& loaded = TheLibrary();

}  // namespace
}  // namespace merovane::library
