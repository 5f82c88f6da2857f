// A name is the address of a socket that nobody talks to: the system frees it with the program, and
// nothing of it stays on the disk.
#include "platform/name_claim.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/posix/posix_api.h"

namespace merovane::platform {
namespace {

class SocketClaim final : public NameClaim {
 public:
  explicit SocketClaim(UniqueDescriptor socket) : socket_(std::move(socket)) {}

 private:
  UniqueDescriptor socket_;
};

}  // namespace

std::unique_ptr<NameClaim> ClaimName(const std::string& name) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  // An address that starts with a zero stands in no folder.
  const std::size_t length = std::min(name.size(), sizeof address.sun_path - 1);
  std::copy_n(name.begin(), length, address.sun_path + 1);
  const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
  UniqueDescriptor holder(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (bind(holder.Get(), reinterpret_cast<const sockaddr*>(&address), size) != 0) return nullptr;
  return std::make_unique<SocketClaim>(std::move(holder));
}

}  // namespace merovane::platform
