// The server object that the interface stands for.
#pragma once

#include <memory>

#include "connection.h"
#include "platform/mutex.h"
#include "tollvane/tollvane.h"

namespace tollvane {

class ServerClient final : public TollvaneServer {
 public:
  void Release() override;
  std::int32_t RegisterReceiver(std::uint32_t messageId, std::int32_t enabled,
                                std::uint32_t threadId) override;
  std::int32_t Connect(const TollvaneConnectParameters* parameters) override;
  std::int32_t Disconnect() override;
  std::int32_t Forward(const void* data, std::uint32_t length) override;

 private:
  std::shared_ptr<Connection> TakeConnection();

  const std::shared_ptr<Receivers> receivers_ = std::make_shared<Receivers>();
  // Outlives the connection: chunks stay readable until the object is released.
  const std::shared_ptr<companions::ChunkArena> arena_ = std::make_shared<companions::ChunkArena>();
  platform::Mutex mutex_;
  std::shared_ptr<Connection> connection_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace tollvane
