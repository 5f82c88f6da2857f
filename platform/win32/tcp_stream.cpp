// TCP connections by overlapped transfers on sockets.
#include <winsock2.h>
#include <ws2tcpip.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "platform/host_addresses.h"
#include "platform/mutex.h"
#include "platform/win32/transfer.h"

namespace merovane::platform {
namespace {

using SteadyClock = std::chrono::steady_clock;
using Outcome = OverlappedTransfer::Outcome;

class Winsock {
 public:
  Winsock() {
    WSADATA data;
    started_ = WSAStartup(MAKEWORD(2, 2), &data) == 0;
  }
  Winsock(const Winsock&) = delete;
  Winsock& operator=(const Winsock&) = delete;
  ~Winsock() {
    if (started_) WSACleanup();
  }
  bool Started() const { return started_; }

 private:
  bool started_;
};

class Socket {
 public:
  explicit Socket(SOCKET value) : value_(value) {}
  Socket(Socket&& other) noexcept : value_(std::exchange(other.value_, INVALID_SOCKET)) {}
  Socket& operator=(Socket&&) = delete;
  ~Socket() {
    if (IsValid()) closesocket(value_);
  }
  SOCKET Get() const { return value_; }
  bool IsValid() const { return value_ != INVALID_SOCKET; }

 private:
  SOCKET value_;
};

bool IsReadable(SOCKET socket) {
  fd_set readable;
  FD_ZERO(&readable);
  FD_SET(socket, &readable);
  timeval now{};
  return select(0, &readable, nullptr, nullptr, &now) > 0;
}

u_long WaitingBytes(SOCKET socket) {
  u_long waiting = 0;
  return ioctlsocket(socket, FIONREAD, &waiting) == 0 ? waiting : 0;
}

class TcpStream final : public ByteStream {
 public:
  explicit TcpStream(Socket socket) : socket_(std::move(socket)) {}

  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                    const Event& stop) override {
    const MutexLock lock(readMutex_);
    const auto result = reading_.Read(Handle(), buffer, timeLimitMs, stop);
    if (result.bytes > 0) return static_cast<std::int32_t>(result.bytes);
    const bool waited = result.outcome == Outcome::TimeLimit || result.outcome == Outcome::Stopped;
    return waited ? 0 : kDeviceGone;
  }

  std::size_t Write(std::span<const std::byte> data, const Event& stop) override {
    std::size_t written = 0;
    while (written < data.size() && !stop.IsSet()) {
      // The system would take bytes for a peer that has gone and tell of it only later.
      if (PeerHasGone()) break;
      const auto piece = data.subspan(written, std::min(kPiece, data.size() - written));
      const auto result = Send(piece, stop);
      written += result.bytes;
      if (result.outcome != Outcome::Done || result.bytes == 0) break;
    }
    return written;
  }

  bool Clear() override {
    // No more than is there now: a peer that never stops sending must not hold the caller.
    std::array<char, 4096> dropped;
    for (u_long total = WaitingBytes(socket_.Get()); total > 0;) {
      // Another thread may have read meanwhile.
      const u_long waiting = std::min(total, WaitingBytes(socket_.Get()));
      if (waiting == 0) break;
      const auto piece = static_cast<int>(std::min<u_long>(waiting, dropped.size()));
      const int count = recv(socket_.Get(), dropped.data(), piece, 0);
      if (count <= 0) return false;
      total -= static_cast<u_long>(count);
    }
    return true;
  }

 private:
  static constexpr std::size_t kPiece = std::size_t{64} * 1024;

  // The end of the stream is readable and has no bytes, and stays so; bytes that another thread
  // reads between the two questions look so once.
  bool PeerHasGone() const {
    for (int look = 0; look < 3; ++look) {
      if (!IsReadable(socket_.Get()) || WaitingBytes(socket_.Get()) > 0) return false;
    }
    return true;
  }

  // WSASend and not WriteFile, whose wait on a full connection Wine 8 takes for one to receive: it
  // spins, and a cancel of it may never end.
  OverlappedTransfer::Result Send(std::span<const std::byte> data, const Event& stop) {
    const auto start = [&](OVERLAPPED& overlapped) {
      WSABUF buffer{static_cast<ULONG>(data.size()),
                    reinterpret_cast<char*>(const_cast<std::byte*>(data.data()))};
      return WSASend(socket_.Get(), &buffer, 1, nullptr, 0, &overlapped, nullptr) == 0;
    };
    return writing_.Run(Handle(), start, kWriteStallMs, stop);
  }

  HANDLE Handle() const { return reinterpret_cast<HANDLE>(socket_.Get()); }

  const Winsock winsock_;
  const Socket socket_;
  Mutex readMutex_;
  OverlappedTransfer reading_ MEROVANE_GUARDED_BY(readMutex_);
  OverlappedTransfer writing_;
};

// Why a connection did not come about.
int ErrorOf(SOCKET socket) {
  int error = 0;
  int size = sizeof error;
  getsockopt(socket, SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &size);
  return error != 0 ? error : WSAECONNREFUSED;
}

// 0 when the connection stands before `deadline`, else why not.
int Connect(SOCKET socket, const addrinfo& address, SteadyClock::time_point deadline) {
  u_long nonBlocking = 1;
  ioctlsocket(socket, FIONBIO, &nonBlocking);
  if (connect(socket, address.ai_addr, static_cast<int>(address.ai_addrlen)) != 0) {
    if (WSAGetLastError() != WSAEWOULDBLOCK) return WSAGetLastError();
    const auto left = std::max<std::int64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(deadline - SteadyClock::now())
            .count(),
        0);
    timeval limit{static_cast<long>(left / 1'000'000), static_cast<long>(left % 1'000'000)};
    fd_set connected;
    fd_set failed;
    FD_ZERO(&connected);
    FD_ZERO(&failed);
    FD_SET(socket, &connected);
    FD_SET(socket, &failed);
    if (select(0, nullptr, &connected, &failed, &limit) <= 0) return WSAETIMEDOUT;
    if (!FD_ISSET(socket, &connected)) return ErrorOf(socket);
  }
  nonBlocking = 0;
  ioctlsocket(socket, FIONBIO, &nonBlocking);
  return 0;
}

}  // namespace

std::unique_ptr<ByteStream> ConnectTcp(const std::string& host, const std::string& service,
                                       std::uint32_t limitMs, OpenTrouble& trouble) {
  const auto deadline = SteadyClock::now() + std::chrono::milliseconds(limitMs);
  const Winsock winsock;
  trouble = {OpenTrouble::Why::Other, WSAGetLastError()};
  if (!winsock.Started()) return nullptr;
  const auto connect = [&](const addrinfo& address) -> std::unique_ptr<ByteStream> {
    Socket socket(
        WSASocketW(address.ai_family, SOCK_STREAM, IPPROTO_TCP, nullptr, 0, WSA_FLAG_OVERLAPPED));
    trouble.systemError =
        socket.IsValid() ? Connect(socket.Get(), address, deadline) : WSAGetLastError();
    if (trouble.systemError != 0) return nullptr;
    const char on = 1;
    setsockopt(socket.Get(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
    return std::make_unique<TcpStream>(std::move(socket));
  };
  return FirstConnected(host, service, connect, trouble);
}

}  // namespace merovane::platform
