#include "far_end.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sched.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace bench {
namespace {

void Need(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(what);
}

void WriteAll(int descriptor, const std::vector<std::uint8_t>& data) {
  for (std::size_t at = 0; at < data.size();) {
    const ssize_t count = ::write(descriptor, data.data() + at, data.size() - at);
    if (count <= 0) return;
    at += static_cast<std::size_t>(count);
  }
}

void MakeRaw(int descriptor) {
  termios settings{};
  Need(::tcgetattr(descriptor, &settings) == 0, "tcgetattr");
  ::cfmakeraw(&settings);
  Need(::tcsetattr(descriptor, TCSANOW, &settings) == 0, "tcsetattr");
}

void NoDelay(int descriptor) {
  const int on = 1;
  ::setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

sockaddr_in Loopback(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(port);
  return address;
}

}  // namespace

FarEnd::FarEnd(ChannelKind kind, std::size_t requestBytes, std::vector<std::uint8_t> answer)
    : kind_(kind), requestBytes_(requestBytes), answer_(std::move(answer)) {
  Need(::pipe2(stop_, O_CLOEXEC) == 0, "pipe");
  if (kind == ChannelKind::Pty) {
    master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    Need(master_ >= 0 && ::grantpt(master_) == 0 && ::unlockpt(master_) == 0, "pty");
    MakeRaw(master_);
    name_ = ::ptsname(master_);
  } else {
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = Loopback(0);
    socklen_t size = sizeof address;
    Need(::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) == 0, "bind");
    Need(::listen(listener_, 64) == 0, "listen");
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    name_ = "socket://127.0.0.1:" + std::to_string(port_);
  }
  thread_ = std::thread([this] { Serve(); });
}

FarEnd::~FarEnd() {
  ::close(stop_[1]);
  thread_.join();
  for (const int descriptor : {stop_[0], listener_, master_}) {
    if (descriptor >= 0) ::close(descriptor);
  }
}

void FarEnd::Serve() {
  int stream = master_;
  std::size_t pending = 0;
  std::array<std::uint8_t, 4096> buffer;
  for (;;) {
    std::array<pollfd, 2> polled{
        {{stream >= 0 ? stream : listener_, POLLIN, 0}, {stop_[0], POLLIN, 0}}};
    if (::poll(polled.data(), 2, -1) < 0 || polled[1].revents != 0) break;
    if (stream < 0) {
      stream = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
      NoDelay(stream);
      continue;
    }
    const ssize_t count = ::read(stream, buffer.data(), buffer.size());
    if (count <= 0) {
      // The near end has closed: a socket is replaced by the next one, a pty comes back.
      pending = 0;
      if (kind_ == ChannelKind::Tcp) {
        ::close(stream);
        stream = -1;
      } else {
        ::usleep(1000);
      }
      continue;
    }
    for (pending += static_cast<std::size_t>(count); pending >= requestBytes_;
         pending -= requestBytes_) {
      WriteAll(stream, answer_);
    }
  }
  if (kind_ == ChannelKind::Tcp && stream >= 0) ::close(stream);
}

int FarEnd::OpenBare() const {
  if (kind_ == ChannelKind::Pty) {
    const int descriptor = ::open(name_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    Need(descriptor >= 0, "open");
    MakeRaw(descriptor);
    return descriptor;
  }
  const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = Loopback(port_);
  Need(::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0,
       "connect");
  NoDelay(descriptor);
  return descriptor;
}

void ExchangeBare(int descriptor, const std::vector<std::uint8_t>& request,
                  std::size_t answerBytes) {
  WriteAll(descriptor, request);
  std::array<std::uint8_t, 65536> buffer;
  for (std::size_t got = 0; got < answerBytes;) {
    pollfd polled{descriptor, POLLIN, 0};
    Need(::poll(&polled, 1, 10'000) == 1, "no answer");
    const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
    Need(count > 0, "read");
    got += static_cast<std::size_t>(count);
  }
}

void PinToOneCore() {
  cpu_set_t cores;
  CPU_ZERO(&cores);
  CPU_SET(0, &cores);
  ::sched_setaffinity(0, sizeof cores, &cores);
}

}  // namespace bench
