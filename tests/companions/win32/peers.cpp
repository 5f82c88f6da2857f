#include "companions/peers.h"

#include "companions/tcp_peer.h"

namespace peers {

std::vector<std::string> Kinds() { return {"tcp"}; }

std::unique_ptr<Peer> Make(const std::string&) { return std::make_unique<TcpPeer>(); }

// The loopback hands over within the send.
void TcpPeer::AwaitDelivery() {}

void PortDevice::SetEnvironment(const std::string& variable, const std::string& value) {
  ::SetEnvironmentVariableA(variable.c_str(), value.empty() ? nullptr : value.c_str());
}

}  // namespace peers
