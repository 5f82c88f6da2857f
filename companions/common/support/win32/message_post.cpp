#include "support/message_post.h"

#include <windows.h>

namespace companions {

bool PostChunk(const Receiver& receiver, const void* chunk, std::uint32_t length) {
  return ::PostThreadMessageW(receiver.threadId, receiver.messageId,
                              reinterpret_cast<WPARAM>(chunk), static_cast<LPARAM>(length)) != 0;
}

}  // namespace companions
