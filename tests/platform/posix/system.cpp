#include "platform/system.h"

#include <dlfcn.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/files.h"
#include "support/temp_directory.h"

namespace merovane::platform::test {

void SetVariable(const std::string& name, const char* value) {
  if (value) {
    setenv(name.c_str(), value, 1);
  } else {
    unsetenv(name.c_str());
  }
}

std::filesystem::path LibraryFile(const std::string& name) { return "lib" + name + ".so"; }

LoadedFile::LoadedFile(const std::filesystem::path& file)
    : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {}
LoadedFile::~LoadedFile() { dlclose(handle_); }
void* LoadedFile::Find(const char* function) const { return dlsym(handle_, function); }

std::string StandardDevice(std::int32_t port) { return "/dev/ttyS" + std::to_string(port - 1); }

// A blocking one: the library must not be held by it.
OwnedEvent::OwnedEvent() : handle_(eventfd(0, EFD_CLOEXEC)) {}
OwnedEvent::~OwnedEvent() { close(static_cast<int>(handle_)); }

bool OwnedEvent::IsSet() const {
  // The kernel's own account of the counter: reading it would empty it.
  const std::string account =
      merovane::test::FileText("/proc/self/fdinfo/" + std::to_string(handle_));
  return account.find("eventfd-count:                0\n") == std::string::npos;
}

ScratchPort::ScratchPort(std::int32_t port)
    : variable_("CASSORIND_COM" + std::to_string(port)),
      name_(TemporaryDirectory() /
            ("merovane-port-" + std::to_string(getpid()) + "-" + std::to_string(port))) {
  SetVariable(variable_, name_.c_str());
}

ScratchPort::~ScratchPort() {
  SetVariable(variable_, nullptr);
  Unplug();
}

void ScratchPort::Plug() { std::filesystem::create_symlink("/dev/null", name_); }

void ScratchPort::Unplug() { std::filesystem::remove(name_); }

}  // namespace merovane::platform::test
