#include "device.h"

#include <string_view>

namespace cassorind {
namespace {

constexpr std::string_view kTcpScheme = "socket://";

// How long a connection may take to come about once its host name is resolved.
constexpr std::uint32_t kConnectLimitMs = 2000;

CassorindReason ReasonOf(platform::OpenTrouble::Why why) {
  using Why = platform::OpenTrouble::Why;
  switch (why) {
    case Why::NoDevice:
      return CASSORIND_NO_DEVICE;
    case Why::Taken:
      return CASSORIND_DEVICE_TAKEN;
    case Why::Denied:
      return CASSORIND_DEVICE_DENIED;
    case Why::NoSerialDevice:
      return CASSORIND_NO_SERIAL_DEVICE;
    case Why::Pipe:
      return CASSORIND_PIPE;
    case Why::RateRefused:
      return CASSORIND_RATE_REFUSED;
    case Why::HostUnknown:
      return CASSORIND_HOST_UNKNOWN;
    case Why::ConnectionRefused:
      return CASSORIND_CONNECTION_REFUSED;
    case Why::None:
    case Why::Other:
      break;
  }
  return CASSORIND_NO_REASON;
}

// Null, and no trouble, for what is no address.
std::unique_ptr<platform::ByteStream> OpenTcp(std::string_view address,
                                              platform::OpenTrouble& trouble) {
  const std::size_t colon = address.rfind(':');
  if (colon == std::string_view::npos) return nullptr;
  std::string_view host = address.substr(0, colon);
  const std::string_view service = address.substr(colon + 1);
  if (host.size() >= 2 && host.front() == '[' && host.back() == ']') {
    host = host.substr(1, host.size() - 2);
  }
  if (host.empty() || service.empty()) return nullptr;
  return platform::ConnectTcp(std::string(host), std::string(service), kConnectLimitMs, trouble);
}

}  // namespace

std::unique_ptr<platform::ByteStream> OpenDevice(const std::string& name, std::uint32_t baudRate,
                                                 CassorindFailure& failure) {
  const bool isSocket = name.starts_with(kTcpScheme);
  platform::OpenTrouble trouble;
  auto stream = isSocket ? OpenTcp(std::string_view(name).substr(kTcpScheme.size()), trouble)
                         : platform::OpenSerialDevice(name, baudRate, trouble);
  failure = {};
  failure.reason = isSocket && trouble.why == platform::OpenTrouble::Why::None
                       ? CASSORIND_ADDRESS_MALFORMED
                       : ReasonOf(trouble.why);
  failure.systemError = trouble.systemError;
  name.copy(failure.device, sizeof failure.device - 1);
  return stream;
}

}  // namespace cassorind
