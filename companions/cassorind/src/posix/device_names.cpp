#include <cstdlib>

#include "device.h"

namespace cassorind {

std::string EnvironmentValue(const std::string& variable) {
  const char* const value = std::getenv(variable.c_str());
  return value ? value : "";
}

std::string DefaultSerialName(std::uint32_t port) { return "/dev/ttyS" + std::to_string(port - 1); }

std::string SerialNameFromUser(const std::string& name) { return name; }

}  // namespace cassorind
