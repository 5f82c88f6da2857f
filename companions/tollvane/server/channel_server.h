// A channel server: sees what its clients forward and can send data to all of them.
#pragma once

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <span>
#include <vector>

namespace channel_server {

class ChannelServer {
 public:
  // Called on the thread that runs the context. Clients are numbered from 1.
  struct Events {
    std::function<void(int client)> connected = [](int) {};
    std::function<void(int client)> disconnected = [](int) {};
    std::function<void(int client, std::span<const std::byte> data)> received =
        [](int, std::span<const std::byte>) {};
  };

  // Listens on 127.0.0.1; port 0 takes any free one. Throws std::system_error when it cannot.
  ChannelServer(asio::io_context& context, std::uint16_t port, Events events);
  ChannelServer(const ChannelServer&) = delete;
  ChannelServer& operator=(const ChannelServer&) = delete;
  ~ChannelServer();

  std::uint16_t Port() const;
  // Any thread may call it. A client that does not read is given up when 16 MiB wait for it.
  void Inject(std::vector<std::byte> data);
  // Stops listening and drops the clients. Any thread may call it.
  void Close();

 private:
  class Client;
  struct Shared;

  static void Accept(const std::shared_ptr<Shared>& shared);

  const std::shared_ptr<Shared> shared_;
  const std::uint16_t port_;
};

}  // namespace channel_server
