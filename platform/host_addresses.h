// The addresses of a host's TCP service. Included after the system's socket headers: both systems
// have the same names there.
#pragma once

#include <memory>
#include <string>

#include "platform/byte_stream.h"

namespace merovane::platform {

// What `connect` makes of the first address that it can reach; null when there is none. It puts the
// system's error into `trouble`.
template <typename Connect>
std::unique_ptr<ByteStream> FirstConnected(const std::string& host, const std::string& service,
                                           const Connect& connect, OpenTrouble& trouble) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  trouble = {OpenTrouble::Why::HostUnknown, 0};
  if (getaddrinfo(host.c_str(), service.c_str(), &hints, &found) != 0) return nullptr;
  trouble = {OpenTrouble::Why::ConnectionRefused, 0};
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> addresses(found, freeaddrinfo);
  for (const addrinfo* each = found; each != nullptr; each = each->ai_next) {
    if (auto stream = connect(*each)) return stream;
  }
  return nullptr;
}

}  // namespace merovane::platform
