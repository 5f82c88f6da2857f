// Message queues by the thread-queue library.
#include "platform/message_queue.h"

#include <signal.h>
#include <threadqueue/threadqueue.h>
#include <unistd.h>

namespace merovane::platform {

std::uint32_t CurrentThreadId() { return threadqueue_current_thread(); }

void CreateMessageQueue() {
  // Asking for messages of an empty range makes the queue and takes none.
  THREADQUEUE_MESSAGE none{};
  threadqueue_take_range(&none, 1, 0);
}

bool PostMessageToThread(std::uint32_t threadId, std::uint32_t id, std::uintptr_t first,
                         std::intptr_t second) {
  return threadqueue_post(threadId, id, first, second) != 0;
}

MessageReceiver::MessageReceiver(std::uint32_t threadId) : threadId_(threadId) {}

bool MessageReceiver::Post(std::uint32_t id, std::uintptr_t first, std::intptr_t second) const {
  return PostMessageToThread(threadId_, id, first, second);
}

bool MessageReceiver::IsGone() const {
  return tgkill(getpid(), static_cast<pid_t>(threadId_), 0) != 0;
}

bool TakeMessage(Message& message, std::uint32_t timeLimitMs) {
  THREADQUEUE_MESSAGE taken{};
  if (threadqueue_take(&taken, timeLimitMs) == 0) return false;
  message = {.id = taken.id, .first = taken.first, .second = taken.second};
  return true;
}

void DispatchForeignMessage(const Message&) {}

}  // namespace merovane::platform
