#include "companions/peers.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/ioctl.h>

#include "companions/posix/pty_peer.h"
#include "companions/tcp_peer.h"

namespace peers {

std::vector<std::string> Kinds() { return {"pty", "tcp"}; }

std::unique_ptr<Peer> Make(const std::string& kind) {
  if (kind == "pty") return std::make_unique<PtyPeer>();
  return std::make_unique<TcpPeer>();
}

void TcpPeer::AwaitDelivery() {
  for (int unacknowledged = 1; unacknowledged > 0;) {
    ASSERT_EQ(::ioctl(server_.Connection().native_handle(), TIOCOUTQ, &unacknowledged), 0);
  }
}

void PortDevice::SetEnvironment(const std::string& variable, const std::string& value) {
  ::setenv(variable.c_str(), value.c_str(), 1);
}

}  // namespace peers
