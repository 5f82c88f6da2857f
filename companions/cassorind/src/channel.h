// The channel object that the interface stands for: lets operations run on any thread while another
// opens or closes.
#pragma once

#include <memory>
#include <optional>

#include "cassorind/cassorind.h"
#include "platform/mutex.h"
#include "session.h"

namespace cassorind {

// Of the last Open on the calling thread; without a device when that one succeeded.
CassorindFailure& LastFailure();

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

  platform::Mutex mutex_;
  platform::ConditionVariable idle_;
  int uses_ MEROVANE_GUARDED_BY(mutex_) = 0;
  bool opening_ MEROVANE_GUARDED_BY(mutex_) = false;
  std::shared_ptr<Session> session_ MEROVANE_GUARDED_BY(mutex_);
  std::optional<companions::Receiver> receiver_ MEROVANE_GUARDED_BY(mutex_);
  // Outlives the session: chunks stay readable until the channel is released.
  std::shared_ptr<companions::ChunkArena> arena_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace cassorind
