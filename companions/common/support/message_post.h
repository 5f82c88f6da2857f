// Posting to the message queue of a thread of this process.
#pragma once

#include <cstdint>

namespace companions {

// What to tell a thread, and which.
struct Receiver {
  std::uint32_t threadId = 0;
  std::uint32_t messageId = 0;
};

// Posts a chunk's address and length; never waits. False when the thread has no queue or a full
// one.
bool PostChunk(const Receiver& receiver, const void* chunk, std::uint32_t length);

}  // namespace companions
