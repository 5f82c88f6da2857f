#include "support/message_post.h"

#include "threadqueue/threadqueue.h"

namespace companions {

bool PostChunk(const Receiver& receiver, const void* chunk, std::uint32_t length) {
  return threadqueue_post(receiver.threadId, receiver.messageId,
                          reinterpret_cast<std::uintptr_t>(chunk),
                          static_cast<std::intptr_t>(length)) != 0;
}

}  // namespace companions
