// The calling thread's message queue and posting to another thread's.
#pragma once

#include <cstdint>
#include <memory>

namespace merovane::platform {

inline constexpr std::uint32_t kQuitMessage = 18;  // WM_QUIT

struct Message {
  std::uint32_t id = 0;
  std::uintptr_t first = 0;  // WPARAM
  std::intptr_t second = 0;  // LPARAM
  void* window = nullptr;    // the window that it is for; never one elsewhere than on Windows
};

std::uint32_t CurrentThreadId();

// Makes the calling thread's queue, so that messages can be posted to it.
void CreateMessageQueue();

// False when the thread has no queue or its queue is full.
bool PostMessageToThread(std::uint32_t threadId, std::uint32_t id, std::uintptr_t first,
                         std::intptr_t second);

// A thread that messages are posted to, from now until it ends: its id is no other thread's as long
// as the system lets that be known. Copies are cheap; any thread may call any operation.
class MessageReceiver {
 public:
  explicit MessageReceiver(std::uint32_t threadId);

  std::uint32_t ThreadId() const { return threadId_; }
  // Never waits. False when the thread has no queue (yet, or any more) or its queue is full.
  bool Post(std::uint32_t id, std::uintptr_t first, std::intptr_t second) const;
  // Whether the thread has ended: nothing can be posted to it any more.
  bool IsGone() const;

 private:
  std::uint32_t threadId_;
  std::shared_ptr<void> thread_;  // what the system gives for it, if it gives anything
};

// Takes the next message of the calling thread, waiting at most `timeLimitMs`
// (UINT32_MAX: without end). False when none came.
bool TakeMessage(Message& message, std::uint32_t timeLimitMs);

// Hands a message that is not ours to the system (Windows: translate and dispatch).
void DispatchForeignMessage(const Message& message);

}  // namespace merovane::platform
