#include "device.h"

#include <string_view>

namespace cassorind {
namespace {

constexpr std::string_view kTcpScheme = "socket://";

// How long a connection may take to come about once its host name is resolved.
constexpr std::uint32_t kConnectLimitMs = 2000;

std::unique_ptr<platform::ByteStream> OpenTcp(std::string_view address) {
  const std::size_t colon = address.rfind(':');
  if (colon == std::string_view::npos) return nullptr;
  std::string_view host = address.substr(0, colon);
  const std::string_view service = address.substr(colon + 1);
  if (host.size() >= 2 && host.front() == '[' && host.back() == ']') {
    host = host.substr(1, host.size() - 2);
  }
  if (host.empty() || service.empty()) return nullptr;
  return platform::ConnectTcp(std::string(host), std::string(service), kConnectLimitMs);
}

}  // namespace

std::unique_ptr<platform::ByteStream> OpenDevice(const std::string& name, std::uint32_t baudRate) {
  if (name.starts_with(kTcpScheme))
    return OpenTcp(std::string_view(name).substr(kTcpScheme.size()));
  return platform::OpenSerialDevice(name, baudRate);
}

}  // namespace cassorind
