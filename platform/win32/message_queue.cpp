// Message queues of the system, which are also its windows'.
#include "platform/message_queue.h"

#include <utility>

#include "platform/clock.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {

static_assert(kQuitMessage == WM_QUIT);

std::uint32_t CurrentThreadId() { return GetCurrentThreadId(); }

void CreateMessageQueue() {
  MSG none;
  PeekMessageW(&none, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
}

bool PostMessageToThread(std::uint32_t threadId, std::uint32_t id, std::uintptr_t first,
                         std::intptr_t second) {
  return threadId != 0 && PostThreadMessageW(threadId, id, first, second) != 0;
}

MessageReceiver::MessageReceiver(std::uint32_t threadId) : threadId_(threadId) {
  // As long as the handle is open no other thread gets the id.
  UniqueHandle thread(OpenThread(SYNCHRONIZE | THREAD_QUERY_LIMITED_INFORMATION, FALSE, threadId));
  if (thread && GetProcessIdOfThread(thread.get()) == GetCurrentProcessId()) {
    thread_ = std::move(thread);
  }
}

bool MessageReceiver::Post(std::uint32_t id, std::uintptr_t first, std::intptr_t second) const {
  return thread_ && PostMessageToThread(threadId_, id, first, second);
}

bool MessageReceiver::IsGone() const {
  return !thread_ || WaitForSingleObject(thread_.get(), 0) == WAIT_OBJECT_0;
}

bool TakeMessage(Message& message, std::uint32_t timeLimitMs) {
  const Deadline deadline(SystemClock(), timeLimitMs);
  for (;;) {
    MSG taken;
    if (PeekMessageW(&taken, nullptr, 0, 0, PM_REMOVE)) {
      message = {
          .id = taken.message, .first = taken.wParam, .second = taken.lParam, .window = taken.hwnd};
      return true;
    }
    const DWORD waitMs = timeLimitMs == UINT32_MAX ? INFINITE : deadline.RemainingMs();
    if (waitMs == 0) return false;
    // Also ends at once for input that was seen before and left in the queue.
    MsgWaitForMultipleObjectsEx(0, nullptr, waitMs, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
}

void DispatchForeignMessage(const Message& message) {
  MSG foreign{};
  foreign.hwnd = static_cast<HWND>(message.window);
  foreign.message = message.id;
  foreign.wParam = message.first;
  foreign.lParam = message.second;
  TranslateMessage(&foreign);
  DispatchMessageW(&foreign);
}

}  // namespace merovane::platform
