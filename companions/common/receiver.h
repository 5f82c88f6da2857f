// A thread that is told of chunks of data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/message_queue.h"

namespace companions {

struct Receiver {
  merovane::platform::MessageReceiver thread;
  std::uint32_t messageId;

  // Posts the chunk's address and length; never waits. False when the thread has no queue or a full
  // one.
  bool Post(std::span<const std::byte> chunk) const {
    return thread.Post(messageId, reinterpret_cast<std::uintptr_t>(chunk.data()),
                       static_cast<std::intptr_t>(chunk.size()));
  }
};

}  // namespace companions
