#include "companions/posix/pty_peer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>

namespace peers {

PtyPeer::PtyPeer() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
  EXPECT_GE(master_, 0);
  EXPECT_EQ(::grantpt(master_), 0);
  EXPECT_EQ(::unlockpt(master_), 0);
  std::array<char, 64> name;
  EXPECT_EQ(::ptsname_r(master_, name.data(), name.size()), 0);
  name_ = name.data();
}

void PtyPeer::Send(std::string_view data) {
  while (!data.empty()) {
    const ssize_t count = ::write(master_, data.data(), data.size());
    ASSERT_GT(count, 0);
    data.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::string PtyPeer::Receive(std::size_t bytes) {
  std::string data;
  while (data.size() < bytes) {
    pollfd polled{master_, POLLIN, 0};
    if (::poll(&polled, 1, kPatienceMs) <= 0) break;
    std::string piece(bytes - data.size(), '\0');
    const ssize_t count = ::read(master_, piece.data(), piece.size());
    if (count <= 0) break;
    data.append(piece, 0, static_cast<std::size_t>(count));
  }
  return data;
}

void PtyPeer::Vanish() {
  if (master_ >= 0) ::close(master_);
  master_ = -1;
}

termios2 PtyPeer::Settings() const {
  termios2 settings{};
  EXPECT_EQ(::ioctl(master_, TCGETS2, &settings), 0);
  return settings;
}

}  // namespace peers
