// Every process's open files are links in /proc.
#include "platform/device_holders.h"

#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace merovane::platform {
namespace {

namespace fs = std::filesystem;

bool IsProcess(const std::string& name, pid_t& process) {
  const char* const end = name.data() + name.size();
  return std::from_chars(name.data(), end, process).ptr == end && process > 0;
}

// The folder's entries, until one says true. What vanishes meanwhile ends the look.
template <typename Visitor>
bool AnyOf(const fs::path& folder, Visitor&& visit) {
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (visit(at->path())) return true;
  }
  return false;
}

bool Holds(const fs::path& process, dev_t device) {
  return AnyOf(process / "fd", [&](const fs::path& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 && S_ISCHR(status.st_mode) && status.st_rdev == device;
  });
}

std::string NameOf(const fs::path& process) {
  std::ifstream file(process / "comm");
  std::string name;
  std::getline(file, name);
  return name;
}

}  // namespace

std::string OtherHoldersOf(const std::string& device) {
  struct stat status {};
  if (stat(device.c_str(), &status) != 0 || !S_ISCHR(status.st_mode)) return {};
  std::string holders;
  AnyOf("/proc", [&](const fs::path& entry) {
    pid_t process = 0;
    if (IsProcess(entry.filename().string(), process) && process != getpid() &&
        Holds(entry, status.st_rdev)) {
      if (!holders.empty()) holders += ", ";
      holders += NameOf(entry) + " (process " + std::to_string(process) + ")";
    }
    return false;
  });
  return holders;
}

}  // namespace merovane::platform
