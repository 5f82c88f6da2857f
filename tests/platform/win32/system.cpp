#include "platform/system.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "platform/win32/windows_api.h"

namespace merovane::platform::test {
namespace {

// Under Wine device names are links in the prefix, which only a program of the system below makes.
// The prefix is told as "\??\unix\home\user\.wine" or "\??\Z:\home\user\.wine".
std::string WinePrefix() {
  const char* told = std::getenv("WINECONFIGDIR");
  std::string prefix = told ? told : "";
  std::ranges::replace(prefix, '\\', '/');
  return prefix.substr(std::min(prefix.find('/', 4), prefix.size()));
}

bool UnderWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

// A program of the system below is not waited for by its handle: what it does is.
void MakeLink(const std::string& command, const std::wstring& device, bool made) {
  std::wstring line = WideFromNarrow(command);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process)) {
    throw std::runtime_error("cannot run " + command);
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  const auto there = [&device] {
    GetFileAttributesW((L"\\\\.\\" + device).c_str());
    return GetLastError() == ERROR_INVALID_PARAMETER;
  };
  for (int i = 0; there() != made; ++i) {
    if (i == 10'000) throw std::runtime_error("no effect: " + command);
    Sleep(1);
  }
}

}  // namespace

void SetVariable(const std::string& name, const char* value) {
  SetEnvironmentVariableA(name.c_str(), value);
}

std::filesystem::path LibraryFile(const std::string& name) { return name + ".dll"; }

LoadedFile::LoadedFile(const std::filesystem::path& file) : handle_(LoadLibraryW(file.c_str())) {}
LoadedFile::~LoadedFile() { FreeLibrary(static_cast<HMODULE>(handle_)); }
void* LoadedFile::Find(const char* function) const {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), function));
}

std::string StandardDevice(std::int32_t port) { return "COM" + std::to_string(port); }

OwnedEvent::OwnedEvent()
    : handle_(reinterpret_cast<std::intptr_t>(CreateEventW(nullptr, TRUE, FALSE, nullptr))) {}
OwnedEvent::~OwnedEvent() { CloseHandle(reinterpret_cast<HANDLE>(handle_)); }

bool OwnedEvent::IsSet() const {
  return WaitForSingleObject(reinterpret_cast<HANDLE>(handle_), 0) == WAIT_OBJECT_0;
}

ScratchPort::ScratchPort(std::int32_t port)
    : variable_("CASSORIND_COM" + std::to_string(port)),
      // Beyond the numbered ports: only the variable makes it one.
      name_("com" + std::to_string(port + 100)) {
  SetVariable(variable_, ("\\\\.\\" + name_.string()).c_str());
}

ScratchPort::~ScratchPort() {
  SetVariable(variable_, nullptr);
  Unplug();
}

void ScratchPort::Plug() {
  if (UnderWine()) {
    MakeLink("Z:\\bin\\ln -s /dev/null " + WinePrefix() + "/dosdevices/" + name_.string(), name_,
             true);
  } else {
    DefineDosDeviceW(DDD_RAW_TARGET_PATH, name_.c_str(), L"\\Device\\Null");
  }
}

void ScratchPort::Unplug() {
  if (UnderWine()) {
    MakeLink("Z:\\bin\\rm -f " + WinePrefix() + "/dosdevices/" + name_.string(), name_, false);
  } else {
    DefineDosDeviceW(DDD_REMOVE_DEFINITION | DDD_RAW_TARGET_PATH | DDD_EXACT_MATCH_ON_REMOVE,
                     name_.c_str(), L"\\Device\\Null");
  }
}

}  // namespace merovane::platform::test
