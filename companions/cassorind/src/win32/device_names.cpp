#include <windows.h>

#include "device.h"

namespace cassorind {

std::string EnvironmentValue(const std::string& variable) {
  // Asked of the system: the C library's copy misses what the host sets while it runs.
  std::string value(::GetEnvironmentVariableA(variable.c_str(), nullptr, 0), '\0');
  if (value.empty()) return value;
  value.resize(
      ::GetEnvironmentVariableA(variable.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return value;
}

// The device name space, without which names above COM9 are not found.
std::string DefaultSerialName(std::uint32_t port) { return R"(\\.\COM)" + std::to_string(port); }

std::string SerialNameFromUser(const std::string& name) {
  return name.starts_with(R"(\\)") ? name : R"(\\.\)" + name;
}

}  // namespace cassorind
