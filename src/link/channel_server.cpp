#include "link/channel_server.h"

#include <algorithm>
#include <cstring>

namespace merovane {

TollvaneServer* LoadServer(platform::Module& library) {
  using InitFunction = TollvaneServer*(COMPANION_CALL*)();
  if (!library.Load("Tollvane")) return nullptr;
  const auto init = reinterpret_cast<InitFunction>(library.Find("InitDll"));
  return init ? init() : nullptr;
}

std::shared_ptr<ServerConnection> ServerConnection::Make(std::uint32_t port, MakeServer make,
                                                         bool& hasLibrary) {
  const std::shared_ptr<ServerConnection> connection(new ServerConnection);
  const platform::MutexLock lock(connection->mutex_);
  connection->server_ = make(connection->library_);
  hasLibrary = connection->server_ != nullptr;
  if (!hasLibrary) return nullptr;
  const TollvaneConnectParameters parameters{port, {0, 0}};
  // Only 0 keeps the interface.
  return connection->server_->Connect(&parameters) == 0 ? connection : nullptr;
}

ServerConnection::~ServerConnection() {
  const platform::MutexLock lock(mutex_);
  if (server_) server_->Release();
}

void ServerConnection::RegisterReceiver(std::uint32_t threadId) {
  const platform::MutexLock lock(mutex_);
  if (server_) server_->RegisterReceiver(kServerDataMessage, 1, threadId);
}

bool ServerConnection::Forward(std::span<const std::uint8_t> chunk) {
  const platform::MutexLock lock(mutex_);
  if (!server_) return false;
  server_->Forward(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
  return true;
}

std::size_t ServerConnection::Take(std::span<const std::uint8_t> posted,
                                   std::span<std::uint8_t> into) {
  const platform::MutexLock lock(mutex_);
  if (!server_) return 0;
  const std::size_t bytes = std::min(posted.size(), into.size());
  std::memcpy(into.data(), posted.data(), bytes);
  return bytes;
}

void ServerConnection::End() {
  const platform::MutexLock lock(mutex_);
  if (!server_) return;
  server_->Disconnect();
  server_->Release();
  server_ = nullptr;
  library_.Free();
}

void ChannelServer::Use(bool on) {
  const platform::MutexLock lock(mutex_);
  if (!on) {
    connected_ = false;
    if (connection_) connection_->End();
    connection_.reset();
    missing_ = Missing::Nothing;
  } else if (!connection_) {
    bool hasLibrary = false;
    connection_ = ServerConnection::Make(port_, make_, hasLibrary);
    connected_ = connection_ != nullptr;
    missing_ = connection_ ? Missing::Nothing : hasLibrary ? Missing::Server : Missing::Library;
  }
}

void ChannelServer::SetPort(std::uint32_t port) {
  const platform::MutexLock lock(mutex_);
  port_ = port;
}

ChannelServer::Missing ChannelServer::WhyNot() const {
  const platform::MutexLock lock(mutex_);
  return missing_;
}

std::shared_ptr<ServerConnection> ChannelServer::Connection() const {
  const platform::MutexLock lock(mutex_);
  return connection_;
}

}  // namespace merovane
