#include "server_client.h"

#include <exception>
#include <utility>

namespace tollvane {

namespace {

constexpr std::uint32_t kConnectLimitMs = 2000;
constexpr std::int32_t kNoConnection = 1;

}  // namespace

void ServerClient::Release() {
  Disconnect();
  delete this;
}

std::int32_t ServerClient::RegisterReceiver(std::uint32_t messageId, std::int32_t enabled,
                                            std::uint32_t threadId) try {
  if (enabled != 0) {
    receivers_->Add({platform::MessageReceiver(threadId), messageId});
  } else {
    receivers_->Remove(threadId);
  }
  return 1;
} catch (const std::exception&) {
  return 0;
}

std::int32_t ServerClient::Connect(const TollvaneConnectParameters* parameters) try {
  if (!parameters || parameters->port == 0 || parameters->port > UINT16_MAX) return kNoConnection;
  Disconnect();
  auto connection = Connection::Open(static_cast<std::uint16_t>(parameters->port), kConnectLimitMs,
                                     receivers_, arena_);
  if (!connection) return kNoConnection;
  const platform::MutexLock lock(mutex_);
  connection_ = std::move(connection);
  return 0;
} catch (const std::exception&) {
  return kNoConnection;
}

std::shared_ptr<Connection> ServerClient::TakeConnection() {
  const platform::MutexLock lock(mutex_);
  return std::move(connection_);
}

std::int32_t ServerClient::Disconnect() try {
  const auto connection = TakeConnection();
  if (!connection) return 0;
  connection->End();
  return 1;
} catch (const std::exception&) {
  return 1;
}

std::int32_t ServerClient::Forward(const void* data, std::uint32_t length) try {
  std::shared_ptr<Connection> connection;
  {
    const platform::MutexLock lock(mutex_);
    connection = connection_;
  }
  if (!connection || !data) return 0;
  return connection->Send({static_cast<const std::byte*>(data), length})
             ? static_cast<std::int32_t>(length)
             : 0;
} catch (const std::exception&) {
  return 0;
}

}  // namespace tollvane
