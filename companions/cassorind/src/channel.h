// The channel object behind the interface: lets operations run from any thread
// while another opens or closes.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

#include "cassorind/cassorind.h"
#include "session.h"

namespace cassorind {

class Channel final : public CassorindChannel {
 public:
  std::int32_t SetReceiver(std::uint32_t messageId, std::int32_t enabled,
                           std::uint32_t threadId) override;
  std::int32_t Open(const CassorindOpenParameters* parameters) override;
  std::int32_t Close() override;
  std::int32_t Clear() override;
  std::int32_t Read(void* buffer, std::uint32_t maxBytes, std::uint32_t timeLimitMs,
                    std::uint32_t reserved) override;
  std::int32_t Write(const void* data, std::uint32_t length, std::uint32_t reserved) override;

  // False when an operation did not come back after a close: the object must stay.
  bool IsIdle();

 private:
  class Use;

  std::shared_ptr<Session> OpenSession(const CassorindOpenParameters& parameters);

  std::mutex mutex_;
  std::condition_variable idle_;
  int uses_ = 0;
  bool opening_ = false;
  std::shared_ptr<Session> session_;
  std::optional<companions::Receiver> receiver_;
  // Outlives the session: chunks stay readable until the channel is released.
  std::shared_ptr<companions::ChunkArena> arena_;
};

}  // namespace cassorind
