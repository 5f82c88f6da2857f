// What exists once per process, from the loading of this library to its unloading.
#pragma once

#include "library/call_recorder.h"
#include "library/failure.h"
#include "library/session_registry.h"
#include "link/link_environment.h"

namespace merovane::library {

class Library {
 public:
  Library();
  ~Library();

  // A new phone object. From the first one on the folder stays as it is.
  SessionRegistry::PhonePointer MakePhone();
  // Reads the settings in, and has logs written to, another folder; false once there was a phone.
  bool SetFolder(const std::filesystem::path& folder);

  LinkEnvironment environment;
  SessionRegistry registry;
  FailureLog failures;
  CallRecorder recorder;

 private:
  void SetTraceFromSettings();

  platform::Mutex folderMutex_;
  bool folderStays_ MEROVANE_GUARDED_BY(folderMutex_) = false;
};

Library& TheLibrary();

}  // namespace merovane::library
