// The master side of a pty.
#pragma once

// The kernel's own header for terminals: the C library's knows only a list of rates.
#include <asm/termbits.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <string>

#include "companions/peers.h"

namespace peers {

class PtyPeer : public Peer {
 public:
  PtyPeer() {
    EXPECT_EQ(::grantpt(master_), 0);
    EXPECT_EQ(::unlockpt(master_), 0);
    std::array<char, 64> name;
    EXPECT_EQ(::ptsname_r(master_, name.data(), name.size()), 0);
    name_ = name.data();
  }
  PtyPeer(const PtyPeer&) = delete;
  PtyPeer& operator=(const PtyPeer&) = delete;
  ~PtyPeer() override { Vanish(); }

  std::string DeviceName() const override { return name_; }
  void Accept() override {}
  void Send(std::string_view data) override {
    while (!data.empty()) {
      const ssize_t count = ::write(master_, data.data(), data.size());
      ASSERT_GT(count, 0);
      data.remove_prefix(static_cast<std::size_t>(count));
    }
  }
  void AwaitDelivery() override {}
  std::string Receive(std::size_t bytes) override {
    std::string data(bytes, '\0');
    std::size_t done = 0;
    pollfd polled{master_, POLLIN, 0};
    while (done<bytes&& ::poll(&polled, 1, kPatienceMs)> 0) {
      const ssize_t count = ::read(master_, data.data() + done, bytes - done);
      if (count <= 0) break;
      done += static_cast<std::size_t>(count);
    }
    return data.substr(0, done);
  }
  void Vanish() override {
    if (master_ >= 0) ::close(master_);
    master_ = -1;
  }
  termios2 Settings() const {
    termios2 settings{};
    EXPECT_EQ(::ioctl(master_, TCGETS2, &settings), 0);
    return settings;
  }

 private:
  int master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  std::string name_;
};

}  // namespace peers
