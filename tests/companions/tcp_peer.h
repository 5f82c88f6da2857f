// A TCP server as the far end of a channel.
#pragma once

#include <string>

#include "companions/peers.h"
#include "support/tcp_server.h"

namespace peers {

class TcpPeer : public Peer {
 public:
  std::string DeviceName() const override { return "socket://127.0.0.1:" + std::to_string(Port()); }
  std::uint16_t Port() const { return server_.Port(); }
  void Accept() override { server_.Accept(); }
  void Send(std::string_view data) override { server_.Send(data); }
  void AwaitDelivery() override;
  std::string Receive(std::size_t bytes) override { return server_.Receive(bytes); }
  void Vanish() override { server_.Vanish(); }

 private:
  merovane::test::TcpServer server_;
};

}  // namespace peers
