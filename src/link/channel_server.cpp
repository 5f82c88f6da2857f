#include "link/channel_server.h"

namespace merovane {

std::shared_ptr<ChannelServer> ChannelServer::Connect(std::uint32_t port) {
  std::shared_ptr<ChannelServer> connection(new ChannelServer);
  if (!connection->library_.Load("Tollvane")) return nullptr;
  using InitFunction = TollvaneServer*(COMPANION_CALL*)();
  const auto init = reinterpret_cast<InitFunction>(connection->library_.Find("InitDll"));
  if (!init) return nullptr;
  connection->server_ = init();
  if (!connection->server_) return nullptr;
  const TollvaneConnectParameters parameters{port, {0, 0}};
  // Only 0 keeps the interface.
  if (connection->server_->Connect(&parameters) != 0) return nullptr;
  return connection;
}

ChannelServer::~ChannelServer() {
  if (server_) server_->Release();
}

void ChannelServer::RegisterReceiver(std::uint32_t threadId, bool enabled) {
  server_->RegisterReceiver(kServerDataMessage, enabled ? 1 : 0, threadId);
}

void ChannelServer::Forward(std::span<const std::uint8_t> chunk) {
  server_->Forward(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
}

void ChannelServer::Disconnect() { server_->Disconnect(); }

}  // namespace merovane
