// A TCP port that serves one station at a time.
#include <asio/ip/tcp.hpp>
#include <optional>
#include <stdexcept>
#include <utility>

#include "transport/stream_pump.h"
#include "transport/transport.h"

namespace handset {
namespace {

using asio::ip::tcp;

class TcpPort final : public Transport {
 public:
  TcpPort(asio::io_context& io, const PortOptions& options, TransportEvents events)
      : acceptor_(io), port_(options.tcpPort), events_(std::move(events)) {
    asio::error_code error;
    address_ = asio::ip::make_address(options.address, error);
    if (error) throw std::runtime_error("not an IP address: " + options.address);
  }

  ~TcpPort() override {
    if (station_) station_->Close();
  }

  void Appear() override {
    try {
      tcp::endpoint endpoint(address_, port_);
      acceptor_.open(endpoint.protocol());
      acceptor_.set_option(tcp::acceptor::reuse_address(true));
      acceptor_.bind(endpoint);
      acceptor_.listen();
    } catch (const std::system_error& error) {
      // An acceptor that is open already could not be tried again.
      asio::error_code ignored;
      acceptor_.close(ignored);
      throw std::runtime_error("cannot listen on " + Address() + ": " + error.what());
    }
    port_ = acceptor_.local_endpoint().port();
    Accept();
  }

  void Vanish() override {
    asio::error_code ignored;
    acceptor_.close(ignored);
    Hangup();
  }

  bool CutConnection() override {
    if (Hangup()) Accept();
    return true;
  }

  bool Connected() const override { return station_ != nullptr; }
  bool Drained() const override { return Backlog() == 0; }
  std::size_t Backlog() const override { return station_ ? station_->Backlog() : 0; }

  void Write(Bytes bytes) override {
    if (station_) station_->Write(std::move(bytes));
  }

  std::string Address() const override {
    std::string host = address_.to_string();
    if (address_.is_v6()) host = "[" + host + "]";
    return host + ":" + std::to_string(port_);
  }

 private:
  // The next station waits in the system's queue until the present one has left.
  void Accept() {
    if (!acceptor_.is_open()) return;
    acceptor_.async_accept([this](const asio::error_code& error, tcp::socket socket) {
      if (error == asio::error::operation_aborted || !acceptor_.is_open()) return;
      if (error) {
        Accept();
        return;
      }
      asio::error_code ignored;
      socket.set_option(tcp::no_delay(true), ignored);
      station_ = std::make_shared<StreamPump<tcp::socket>>(
          std::move(socket), [this](auto bytes) { events_.received(bytes); },
          [this] {
            if (Hangup()) Accept();
          });
      events_.connection(true);
      station_->Read();
    });
  }

  bool Hangup() {
    if (!station_) return false;
    std::exchange(station_, nullptr)->Close();
    events_.connection(false);
    return true;
  }

  tcp::acceptor acceptor_;
  asio::ip::address address_;
  std::uint16_t port_;
  TransportEvents events_;
  std::shared_ptr<StreamPump<tcp::socket>> station_;
};

}  // namespace

std::unique_ptr<Transport> MakeTcp(asio::io_context& io, const PortOptions& options,
                                   TransportEvents events) {
  return std::make_unique<TcpPort>(io, options, std::move(events));
}

}  // namespace handset
