#include "device.h"

#include <string_view>

namespace cassorind {

namespace {

constexpr std::string_view kTcpScheme = "socket://";

std::optional<TcpAddress> ParseAddress(std::string_view address) {
  const std::size_t colon = address.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  std::string_view host = address.substr(0, colon);
  const std::string_view service = address.substr(colon + 1);
  if (host.size() >= 2 && host.front() == '[' && host.back() == ']') {
    host = host.substr(1, host.size() - 2);
  }
  if (host.empty() || service.empty()) return std::nullopt;
  return TcpAddress{std::string(host), std::string(service)};
}

}  // namespace

Device ParseDevice(const std::string& name) {
  if (name.starts_with(kTcpScheme)) {
    return {{}, ParseAddress(std::string_view(name).substr(kTcpScheme.size()))};
  }
  return {SerialDevice{SerialNameFromUser(name)}, {}};
}

Device DeviceOfPort(std::uint32_t port) {
  const std::string name = EnvironmentValue("CASSORIND_COM" + std::to_string(port));
  if (name.empty()) return {SerialDevice{DefaultSerialName(port)}, {}};
  return ParseDevice(name);
}

}  // namespace cassorind
