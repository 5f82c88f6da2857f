// The far end of a channel or of a connection: a TCP server that says and hears only what a test
// does.
#pragma once

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>
#include <string_view>

namespace peers {

inline constexpr int kPatienceMs = 20000;

class Peer {
 public:
  Peer() = default;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;
  virtual ~Peer() { Vanish(); }

  virtual std::string DeviceName() const = 0;
  // After the channel's open.
  virtual void Accept() {}
  virtual void Vanish() {
    if (stream_ >= 0) ::close(stream_);
    stream_ = -1;
  }

  void Send(std::string_view data) {
    while (!data.empty()) {
      const ssize_t count = ::write(stream_, data.data(), data.size());
      ASSERT_GT(count, 0);
      data.remove_prefix(static_cast<std::size_t>(count));
    }
  }
  // Returns when the system has what was sent on the channel's side.
  virtual void AwaitDelivery() {}
  // Takes exactly `bytes` bytes.
  std::string Receive(std::size_t bytes) {
    std::string data;
    while (data.size() < bytes) {
      pollfd polled{stream_, POLLIN, 0};
      if (::poll(&polled, 1, kPatienceMs) <= 0) break;
      std::string piece(bytes - data.size(), '\0');
      const ssize_t count = ::read(stream_, piece.data(), piece.size());
      if (count <= 0) break;
      data.append(piece, 0, static_cast<std::size_t>(count));
    }
    return data;
  }

 protected:
  int stream_ = -1;
};

class TcpPeer : public Peer {
 public:
  TcpPeer() : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(::listen(listener_, 4), 0);
    socklen_t size = sizeof(address);
    EXPECT_EQ(::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size), 0);
    port_ = ntohs(address.sin_port);
  }
  ~TcpPeer() override { ::close(listener_); }
  std::string DeviceName() const override { return "socket://127.0.0.1:" + std::to_string(port_); }
  std::uint16_t Port() const { return port_; }
  void Accept() override {
    stream_ = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    EXPECT_GE(stream_, 0);
  }
  void AwaitDelivery() override {
    for (int unacknowledged = 1; unacknowledged > 0;) {
      ASSERT_EQ(::ioctl(stream_, TIOCOUTQ, &unacknowledged), 0);
    }
  }

 private:
  int listener_;
  std::uint16_t port_ = 0;
};

}  // namespace peers
