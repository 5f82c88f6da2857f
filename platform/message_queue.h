// The calling thread's message queue and posting to another thread's.
#pragma once

#include <cstdint>

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

// Takes the next message of the calling thread, waiting at most `timeLimitMs`
// (UINT32_MAX: without end). False when none came.
bool TakeMessage(Message& message, std::uint32_t timeLimitMs);

// Hands a message that is not ours to the system (Windows: translate and dispatch).
void DispatchForeignMessage(const Message& message);

}  // namespace merovane::platform
