// What the tests need of each system.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace merovane::platform::test {

// Null takes the variable away.
void SetVariable(const std::string& name, const char* value);

// The file of a library of this name.
std::filesystem::path LibraryFile(const std::string& name);

// A library that is loaded from a certain file.
class LoadedFile {
 public:
  explicit LoadedFile(const std::filesystem::path& file);
  ~LoadedFile();
  LoadedFile(const LoadedFile&) = delete;
  LoadedFile& operator=(const LoadedFile&) = delete;

  void* Find(const char* function) const;

 private:
  void* handle_;
};

// The system's own device of port `port`.
std::string StandardDevice(std::int32_t port);

// An event as the library's callers make it.
class OwnedEvent {
 public:
  OwnedEvent();
  ~OwnedEvent();
  OwnedEvent(const OwnedEvent&) = delete;
  OwnedEvent& operator=(const OwnedEvent&) = delete;

  std::intptr_t Handle() const { return handle_; }
  bool IsSet() const;

 private:
  std::intptr_t handle_;
};

// A serial device that comes and goes, and the variable that names it as port `port`.
class ScratchPort {
 public:
  explicit ScratchPort(std::int32_t port);
  ~ScratchPort();
  ScratchPort(const ScratchPort&) = delete;
  ScratchPort& operator=(const ScratchPort&) = delete;

  void Plug();
  void Unplug();

 private:
  std::string variable_;
  std::filesystem::path name_;
};

}  // namespace merovane::platform::test
