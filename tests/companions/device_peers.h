// The far ends of a channel, and how a port comes to name them.
#pragma once

#include <gtest/gtest.h>

// The C library's header for terminals knows only a list of rates.
#include <asm/termbits.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>

#include <string>

#include "companions/tcp_peer.h"

namespace peers {

class PtyPeer : public Peer {
 public:
  PtyPeer() {
    stream_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    EXPECT_GE(stream_, 0);
    EXPECT_EQ(::grantpt(stream_), 0);
    EXPECT_EQ(::unlockpt(stream_), 0);
    char name[64];
    EXPECT_EQ(::ptsname_r(stream_, name, sizeof(name)), 0);
    name_ = name;
  }
  std::string DeviceName() const override { return name_; }
  termios2 Settings() const {
    termios2 settings{};
    EXPECT_EQ(::ioctl(stream_, TCGETS2, &settings), 0);
    return settings;
  }

 private:
  std::string name_;
};

// Names the device of a port for the lifetime of this object.
class PortDevice {
 public:
  PortDevice(int port, const std::string& device)
      : variable_("CASSORIND_COM" + std::to_string(port)) {
    ::setenv(variable_.c_str(), device.c_str(), 1);
  }
  PortDevice(const PortDevice&) = delete;
  PortDevice& operator=(const PortDevice&) = delete;
  ~PortDevice() { ::unsetenv(variable_.c_str()); }

 private:
  std::string variable_;
};

}  // namespace peers
