#include "channel_server.h"

#include <array>
#include <asio/post.hpp>
#include <asio/write.hpp>
#include <deque>
#include <utility>

namespace channel_server {

namespace {

constexpr std::size_t kMaxWaitingBytes = std::size_t{16} * 1024 * 1024;

using Data = std::shared_ptr<const std::vector<std::byte>>;

}  // namespace

struct ChannelServer::Shared {
  Shared(asio::io_context& io, const asio::ip::tcp::endpoint& endpoint, Events handlers)
      : context(io), acceptor(io, endpoint), events(std::move(handlers)) {}

  asio::io_context& context;
  asio::ip::tcp::acceptor acceptor;
  const Events events;
  std::set<std::shared_ptr<Client>> clients;
  int accepted = 0;
};

class ChannelServer::Client : public std::enable_shared_from_this<Client> {
 public:
  Client(const std::shared_ptr<Shared>& shared, asio::ip::tcp::socket socket, int number)
      : shared_(shared), socket_(std::move(socket)), number_(number) {
    std::error_code ignored;
    socket_.set_option(asio::ip::tcp::no_delay(true), ignored);
  }

  void Receive() {
    socket_.async_read_some(
        asio::buffer(buffer_),
        [self = shared_from_this()](const std::error_code& error, std::size_t count) {
          const auto shared = self->shared_.lock();
          if (error || !shared) return self->Drop();
          shared->events.received(self->number_, std::span(self->buffer_).first(count));
          self->Receive();
        });
  }

  void Send(const Data& data) {
    if (waitingBytes_ + data->size() > kMaxWaitingBytes) return Drop();
    waitingBytes_ += data->size();
    waiting_.push_back(data);
    if (waiting_.size() == 1) SendFirst();
  }

  void Drop() {
    if (!socket_.is_open()) return;
    std::error_code ignored;
    socket_.close(ignored);
    if (const auto shared = shared_.lock()) {
      shared->events.disconnected(number_);
      shared->clients.erase(shared_from_this());
    }
  }

 private:
  void SendFirst() {
    asio::async_write(socket_, asio::buffer(*waiting_.front()),
                      [self = shared_from_this()](const std::error_code& error, std::size_t count) {
                        if (error) return self->Drop();
                        self->waitingBytes_ -= count;
                        self->waiting_.pop_front();
                        if (!self->waiting_.empty()) self->SendFirst();
                      });
  }

  const std::weak_ptr<Shared> shared_;  // which holds the clients
  asio::ip::tcp::socket socket_;
  const int number_;
  std::array<std::byte, std::size_t{16} * 1024> buffer_{};
  std::deque<Data> waiting_;
  std::size_t waitingBytes_ = 0;
};

ChannelServer::ChannelServer(asio::io_context& context, std::uint16_t port, Events events)
    : shared_(std::make_shared<Shared>(
          context, asio::ip::tcp::endpoint(asio::ip::address_v4::loopback(), port),
          std::move(events))),
      port_(shared_->acceptor.local_endpoint().port()) {
  Accept(shared_);
}

ChannelServer::~ChannelServer() { Close(); }

std::uint16_t ChannelServer::Port() const { return port_; }

void ChannelServer::Accept(const std::shared_ptr<Shared>& shared) {
  shared->acceptor.async_accept([shared](const std::error_code& error,
                                         asio::ip::tcp::socket socket) {
    if (!shared->acceptor.is_open()) return;
    if (!error) {
      const auto client = std::make_shared<Client>(shared, std::move(socket), ++shared->accepted);
      shared->clients.insert(client);
      shared->events.connected(shared->accepted);
      client->Receive();
    }
    Accept(shared);
  });
}

void ChannelServer::Inject(std::vector<std::byte> data) {
  if (data.empty()) return;
  asio::post(
      shared_->context,
      [shared = shared_, shares = std::make_shared<const std::vector<std::byte>>(std::move(data))] {
        // A copy, since a client that is dropped leaves the set.
        for (const auto& client : std::set(shared->clients)) client->Send(shares);
      });
}

void ChannelServer::Close() {
  asio::post(shared_->context, [shared = shared_] {
    std::error_code ignored;
    shared->acceptor.close(ignored);
    for (const auto& client : std::set(shared->clients)) client->Drop();
  });
}

}  // namespace channel_server
