// TCP connections by non-blocking sockets.
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>

#include "platform/host_addresses.h"
#include "platform/posix/transfer.h"

namespace merovane::platform {
namespace {

using SteadyClock = std::chrono::steady_clock;

class TcpStream final : public DescriptorStream {
 public:
  using DescriptorStream::DescriptorStream;

  bool Clear() override {
    // No more than is there now: a peer that never stops sending must not hold the caller.
    int waiting = 0;
    if (ioctl(Get(), FIONREAD, &waiting) != 0) return false;
    std::array<std::byte, 4096> dropped;
    while (waiting > 0) {
      const auto piece = std::min(static_cast<std::size_t>(waiting), dropped.size());
      const ssize_t count = recv(Get(), dropped.data(), piece, MSG_DONTWAIT);
      // The end of the stream stays readable, so that the next read tells of it.
      if (count == 0) return true;
      if (count < 0 && errno != EINTR) return errno == EAGAIN;
      waiting -= static_cast<int>(std::max<ssize_t>(count, 0));
    }
    return true;
  }

 private:
  std::ptrdiff_t WriteSome(std::span<const std::byte> data) override {
    // The system would take bytes for a peer that has gone and tell of it only later.
    pollfd peer{Get(), POLLRDHUP, 0};
    if (poll(&peer, 1, 0) > 0) {
      errno = EPIPE;
      return -1;
    }
    return send(Get(), data.data(), data.size(), MSG_NOSIGNAL);
  }
};

// 0 when the connection stands before `deadline`, else why not.
int Connect(int descriptor, const addrinfo& address, SteadyClock::time_point deadline) {
  if (connect(descriptor, address.ai_addr, address.ai_addrlen) == 0) return 0;
  if (errno != EINPROGRESS && errno != EINTR) return errno;
  pollfd connecting{descriptor, POLLOUT, 0};
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now());
    const int count =
        poll(&connecting, 1, static_cast<int>(std::max<std::int64_t>(left.count(), 0)));
    if (count == 0) return ETIMEDOUT;
    if (count > 0) break;
    if (errno != EINTR) return errno;
  }
  int error = 0;
  socklen_t size = sizeof(error);
  return getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

}  // namespace

std::unique_ptr<ByteStream> ConnectTcp(const std::string& host, const std::string& service,
                                       std::uint32_t limitMs, OpenTrouble& trouble) {
  const auto deadline = SteadyClock::now() + std::chrono::milliseconds(limitMs);
  const auto connect = [&](const addrinfo& address) -> std::unique_ptr<ByteStream> {
    UniqueDescriptor descriptor(
        socket(address.ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    trouble.systemError = descriptor ? Connect(descriptor.Get(), address, deadline) : errno;
    if (trouble.systemError != 0) return nullptr;
    const int on = 1;
    setsockopt(descriptor.Get(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
    return std::make_unique<TcpStream>(std::move(descriptor));
  };
  return FirstConnected(host, service, connect, trouble);
}

}  // namespace merovane::platform
