// A TCP server that says and hears only what a test does.
#pragma once

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/read.hpp>
#include <asio/write.hpp>
#include <string>

#include "companions/peers.h"

namespace peers {

class TcpPeer : public Peer {
 public:
  std::string DeviceName() const override { return "socket://127.0.0.1:" + std::to_string(Port()); }
  std::uint16_t Port() const { return acceptor_.local_endpoint().port(); }
  void Accept() override {
    stream_ = acceptor_.accept();
    stream_.set_option(asio::ip::tcp::no_delay(true));
  }
  void Send(std::string_view data) override { asio::write(stream_, asio::buffer(data)); }
  void AwaitDelivery() override;
  std::string Receive(std::size_t bytes) override {
    std::string data(bytes, '\0');
    std::error_code closed;
    data.resize(asio::read(stream_, asio::buffer(data), closed));
    return data;
  }
  void Vanish() override { stream_.close(); }

 private:
  asio::io_context context_;
  asio::ip::tcp::acceptor acceptor_{context_, {asio::ip::address_v4::loopback(), 0}};
  asio::ip::tcp::socket stream_{context_};
};

}  // namespace peers
