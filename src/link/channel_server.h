// The connection to the channel server, through the socket library.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "platform/module.h"
#include "tollvane/tollvane.h"

namespace merovane {

class ChannelServer {
 public:
  // Loads the socket library and connects; null when either cannot be done.
  static std::shared_ptr<ChannelServer> Connect(std::uint32_t port);
  ~ChannelServer();
  ChannelServer(const ChannelServer&) = delete;
  ChannelServer& operator=(const ChannelServer&) = delete;

  // Data meant for the handset is posted to the thread as messages 2025.
  void RegisterReceiver(std::uint32_t threadId, bool enabled);
  void Forward(std::span<const std::uint8_t> chunk);
  void Disconnect();

 private:
  ChannelServer() = default;

  platform::Module library_;
  TollvaneServer* server_ = nullptr;  // freed through its own release operation
};

// Message that carries data from the channel server.
inline constexpr std::uint32_t kServerDataMessage = 2025;

}  // namespace merovane
