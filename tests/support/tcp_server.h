// A TCP server on this machine that takes one connection at a time and does only what a test does.
#pragma once

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/read.hpp>
#include <asio/write.hpp>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace merovane::test {

class TcpServer {
 public:
  std::uint16_t Port() const { return acceptor_.local_endpoint().port(); }
  // A former connection is dropped.
  void Accept() {
    connection_ = acceptor_.accept();
    connection_.set_option(asio::ip::tcp::no_delay(true));
  }
  void Vanish() { connection_.close(); }
  void Send(std::string_view data) { asio::write(connection_, asio::buffer(data)); }
  // Fewer bytes than asked for when the connection ended.
  std::string Receive(std::size_t bytes) {
    std::string data(bytes, '\0');
    asio::error_code error;
    data.resize(asio::read(connection_, asio::buffer(data), error));
    return data;
  }
  asio::ip::tcp::socket& Connection() { return connection_; }

 private:
  asio::io_context io_;
  asio::ip::tcp::acceptor acceptor_{io_, {asio::ip::address_v4::loopback(), 0}};
  asio::ip::tcp::socket connection_{io_};
};

}  // namespace merovane::test
