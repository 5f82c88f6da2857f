// Ports by their names in the device name space.
#include "platform/serial_ports.h"

#include <array>
#include <functional>
#include <set>

#include "platform/win32/windows_api.h"

namespace merovane::platform {
namespace {

constexpr std::string_view kStandardPort = "COM";

bool StartsWithoutCase(std::wstring_view text, std::string_view ascii) {
  const std::wstring start(ascii.begin(), ascii.end());
  return text.size() >= start.size() &&
         CompareStringOrdinal(text.data(), static_cast<int>(start.size()), start.data(),
                              static_cast<int>(start.size()), TRUE) == CSTR_EQUAL;
}

// The number after `start` in a name such as "COM12".
std::optional<std::int32_t> NumberAfter(std::wstring_view name, std::string_view start,
                                        std::int32_t last) {
  if (!StartsWithoutCase(name, start)) return std::nullopt;
  return WholeNumber(NarrowFromWide(name.substr(start.size())), 1, last);
}

}  // namespace

std::map<std::int32_t, std::string> NamedPorts() {
  std::map<std::int32_t, std::string> ports;
  const std::unique_ptr<wchar_t, decltype(&FreeEnvironmentStringsW)> variables(
      GetEnvironmentStringsW(), FreeEnvironmentStringsW);
  if (!variables) return ports;
  for (const wchar_t* next = variables.get(); *next != L'\0';) {
    const std::wstring_view variable = next;
    next += variable.size() + 1;
    const std::size_t equals = variable.find(L'=', 1);
    if (equals == std::wstring_view::npos || equals + 1 == variable.size()) continue;
    const auto port = NumberAfter(variable.substr(0, equals), kPortVariable, INT32_MAX);
    if (!port) continue;
    ports.emplace(*port, NarrowFromWide(variable.substr(equals + 1)));
  }
  return ports;
}

std::string DeviceOfPort(std::int32_t port) {
  const auto named = NamedPorts();
  const auto found = named.find(port);
  return found == named.end() ? std::string(kStandardPort) + std::to_string(port) : found->second;
}

namespace {

// The ports that the serial drivers have entered in the system's device map.
std::set<std::int32_t> MappedPorts() {
  std::set<std::int32_t> ports;
  HKEY map = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_QUERY_VALUE,
                    &map) != ERROR_SUCCESS) {
    return ports;
  }
  for (DWORD i = 0;; ++i) {
    std::array<wchar_t, 256> device{};
    std::array<wchar_t, 64> name{};
    DWORD deviceLength = device.size();
    // One character less than there is room for: the registry need not end texts.
    DWORD nameBytes = (name.size() - 1) * sizeof(wchar_t);
    const LSTATUS status = RegEnumValueW(map, i, device.data(), &deviceLength, nullptr, nullptr,
                                         reinterpret_cast<BYTE*>(name.data()), &nameBytes);
    if (status == ERROR_MORE_DATA) continue;
    if (status != ERROR_SUCCESS) break;
    if (const auto port = NumberAfter(name.data(), kStandardPort, kLastPort)) ports.insert(*port);
  }
  RegCloseKey(map);
  return ports;
}

// Wine's device names are links in a directory of its own. One that is made later can be opened
// but is in none of the system's lists, and only asking for its attributes tells that it is there:
// no file has such a name, and a device is refused. Windows itself would open the device to tell.
bool NamesAreLinks() {
  static const bool areLinks =
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return areLinks;
}

bool LinkExists(const std::wstring& name) {
  return GetFileAttributesW((L"\\\\.\\" + name).c_str()) == INVALID_FILE_ATTRIBUTES &&
         GetLastError() == ERROR_INVALID_PARAMETER;
}

// What the device is called by its driver, if it is there.
std::optional<std::wstring> Device(const std::wstring& name) {
  if (NamesAreLinks()) return LinkExists(name) ? std::optional<std::wstring>(L"") : std::nullopt;
  std::array<wchar_t, 1024> target{};
  if (QueryDosDeviceW(name.c_str(), target.data(), target.size() - 1) == 0) return std::nullopt;
  return target.data();
}

std::set<std::int32_t> CandidatePorts() {
  if (!NamesAreLinks()) return MappedPorts();
  std::set<std::int32_t> all;
  for (std::int32_t port = 1; port <= kLastPort; ++port) all.insert(all.end(), port);
  return all;
}

}  // namespace

struct SerialPorts::State {};

SerialPorts::SerialPorts() = default;
SerialPorts::~SerialPorts() = default;

// A driver gives the device that came back the name that it had.
bool SerialPorts::TellsReturns() { return false; }

std::map<std::int32_t, std::uint64_t> SerialPorts::Present() {
  std::map<std::int32_t, std::uint64_t> present;
  const auto note = [&present](std::int32_t port, std::string_view name) {
    constexpr std::string_view kDevicePrefix = "\\\\.\\";
    if (name.starts_with(kDevicePrefix)) name.remove_prefix(kDevicePrefix.size());
    if (const auto device = Device(WideFromNarrow(name))) {
      present.emplace(port, std::hash<std::wstring>{}(*device));
    }
  };
  const auto named = NamedPorts();
  for (const auto& [port, name] : named) {
    if (port <= kLastPort) note(port, name);
  }
  for (const std::int32_t port : CandidatePorts()) {
    if (!named.contains(port)) note(port, std::string(kStandardPort) + std::to_string(port));
  }
  return present;
}

}  // namespace merovane::platform
