// Ports by their device nodes: what is stored of a node tells whether it is still the same device.
#include "platform/serial_ports.h"

#include <dirent.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace merovane::platform {
namespace {

constexpr std::string_view kStandardPort = "ttyS";
constexpr const char* kDeviceDirectory = "/dev";

struct Device {
  // What names the device: the link, if the path is one, and the node at its end.
  std::string linkTarget;
  ino_t linkNode = 0;
  std::int64_t linkMadeNs = 0;
  dev_t system = 0;
  ino_t node = 0;
  dev_t number = 0;
  // Only of pseudo-terminals, whose node numbers come back: when the node was made or last changed.
  std::int64_t changedNs = 0;
  std::tuple<mode_t, uid_t, gid_t> access{};

  // A change of access rights, as device managers make soon after an arrival, is no new device.
  bool Is(const Device& before) const {
    const auto name = [](const Device& device) {
      return std::tie(device.linkTarget, device.linkNode, device.linkMadeNs, device.system,
                      device.node, device.number);
    };
    return name(*this) == name(before) &&
           (changedNs == before.changedNs || access != before.access);
  }
};

std::int64_t Nanoseconds(const timespec& time) {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

bool IsPseudoTerminal(const struct stat& status) {
  const unsigned group = major(status.st_rdev);
  return S_ISCHR(status.st_mode) && group >= 136 && group <= 143;
}

std::optional<Device> Look(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) return std::nullopt;
  Device device;
  device.system = status.st_dev;
  device.node = status.st_ino;
  device.number = status.st_rdev;
  device.access = {status.st_mode, status.st_uid, status.st_gid};
  if (IsPseudoTerminal(status)) device.changedNs = Nanoseconds(status.st_ctim);
  struct stat link {};
  if (lstat(path.c_str(), &link) == 0 && S_ISLNK(link.st_mode)) {
    std::array<char, 4096> target{};
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length > 0) device.linkTarget.assign(target.data(), static_cast<std::size_t>(length));
    device.linkNode = link.st_ino;
    device.linkMadeNs = Nanoseconds(link.st_ctim);
  }
  return device;
}

// The numbers n of the nodes ttyS<n>. The directory is listed only when it has changed.
class StandardPorts {
 public:
  const std::vector<std::int32_t>& Numbers() {
    struct stat status {};
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (stat(kDeviceDirectory, &status) != 0) return numbers_;
    const std::int64_t changedNs = Nanoseconds(status.st_mtim);
    // Time stamps are coarse: another change may follow within the same one.
    constexpr std::int64_t kCoarseNs = 100'000'000;
    const bool settled = Nanoseconds(now) - changedNs > kCoarseNs;
    if (changedNs == listedNs_ && listedSettled_) return numbers_;
    listedNs_ = changedNs;
    listedSettled_ = settled;
    List();
    return numbers_;
  }

 private:
  void List() {
    numbers_.clear();
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(kDeviceDirectory), closedir);
    if (!directory) return;
    while (const dirent* entry = readdir(directory.get())) {
      const std::string_view name = entry->d_name;
      if (!name.starts_with(kStandardPort)) continue;
      if (const auto number = WholeNumber(name.substr(kStandardPort.size()), 0, kLastPort - 1)) {
        numbers_.push_back(*number);
      }
    }
  }

  std::vector<std::int32_t> numbers_;
  std::int64_t listedNs_ = -1;
  bool listedSettled_ = false;
};

std::string StandardPath(std::int32_t port) {
  return std::string(kDeviceDirectory).append("/").append(kStandardPort) + std::to_string(port - 1);
}

}  // namespace

std::map<std::int32_t, std::string> NamedPorts() {
  std::map<std::int32_t, std::string> ports;
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    const std::string_view variable = *entry;
    if (!variable.starts_with(kPortVariable)) continue;
    const std::size_t equals = variable.find('=');
    if (equals == std::string_view::npos || equals + 1 == variable.size()) continue;
    const auto port = WholeNumber(
        variable.substr(kPortVariable.size(), equals - kPortVariable.size()), 1, INT32_MAX);
    if (port) ports.emplace(*port, variable.substr(equals + 1));
  }
  return ports;
}

std::string DeviceOfPort(std::int32_t port) {
  const auto named = NamedPorts();
  const auto found = named.find(port);
  return found == named.end() ? StandardPath(port) : found->second;
}

struct SerialPorts::State {
  struct Seen {
    Device device;
    std::uint64_t generation;
  };

  void Note(std::int32_t port, const std::string& path) {
    auto device = Look(path);
    if (!device) return;
    const auto before = seen.find(port);
    const bool same = before != seen.end() && device->Is(before->second.device);
    now.insert_or_assign(
        port, Seen{std::move(*device), same ? before->second.generation : ++lastGeneration});
  }

  StandardPorts standard;
  std::map<std::int32_t, Seen> seen;
  std::map<std::int32_t, Seen> now;
  std::uint64_t lastGeneration = 0;
};

SerialPorts::SerialPorts() : state_(std::make_unique<State>()) {}
SerialPorts::~SerialPorts() = default;

bool SerialPorts::TellsReturns() { return true; }

std::map<std::int32_t, std::uint64_t> SerialPorts::Present() {
  State& state = *state_;
  state.now.clear();
  const auto named = NamedPorts();
  // A TCP endpoint is no device; its path names no file.
  for (const auto& [port, path] : named) {
    if (port <= kLastPort) state.Note(port, path);
  }
  for (const std::int32_t number : state.standard.Numbers()) {
    const std::int32_t port = number + 1;
    if (!named.contains(port)) state.Note(port, StandardPath(port));
  }
  state.seen.swap(state.now);
  std::map<std::int32_t, std::uint64_t> present;
  for (const auto& [port, seen] : state.seen) present.emplace(port, seen.generation);
  return present;
}

}  // namespace merovane::platform
