// Threads of the C runtime.
#include "platform/thread.h"

#include <process.h>

#include <array>
#include <new>
#include <utility>

#include "platform/message_queue.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {

struct Thread::State {
  std::function<void()> body;
  bool takesMessages = false;
  UniqueHandle started{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  UniqueHandle done{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  UniqueHandle thread;
  unsigned id = 0;

  static unsigned __stdcall Run(void* argument);
};

namespace {

// A thread whose body is done ends at once, unless the library is being unloaded: the system lets
// no thread end meanwhile.
constexpr DWORD kEndGraceMs = 50;

// Keeps this library's code in memory for as long as the process lives.
void KeepLoaded() {
  HMODULE self = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                     reinterpret_cast<LPCWSTR>(&KeepLoaded), &self);
}

bool IsSignalled(HANDLE handle) { return WaitForSingleObject(handle, 0) == WAIT_OBJECT_0; }

}  // namespace

unsigned __stdcall Thread::State::Run(void* argument) {
  const std::unique_ptr<std::shared_ptr<State>> owned(
      static_cast<std::shared_ptr<State>*>(argument));
  State& state = **owned;
  if (state.takesMessages) CreateMessageQueue();
  SetEvent(state.started.get());
  try {
    state.body();
  } catch (...) {  // NOLINT(bugprone-empty-catch): it ends the thread and nothing else
  }
  state.body = nullptr;
  SetEvent(state.done.get());
  return 0;
}

bool Thread::Start(std::function<void()> body) {
  if (!Create(std::move(body), true)) return false;
  const std::array<HANDLE, 2> begunOrKilled{state_->started.get(), state_->thread.get()};
  WaitForMultipleObjects(2, begunOrKilled.data(), FALSE, INFINITE);
  return true;
}

bool Thread::Create(std::function<void()> body, bool takesMessages) {
  if (state_ && !WaitMs(0)) return false;
  try {
    auto state = std::make_shared<State>();
    if (!state->started || !state->done) return false;
    state->body = std::move(body);
    state->takesMessages = takesMessages;
    auto argument = std::make_unique<std::shared_ptr<State>>(state);
    state->thread.reset(reinterpret_cast<HANDLE>(
        _beginthreadex(nullptr, 0, State::Run, argument.get(), 0, &state->id)));
    if (!state->thread) return false;
    static_cast<void>(argument.release());
    state_ = std::move(state);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

bool Thread::Running() const {
  return state_ && !IsSignalled(state_->done.get()) && !IsSignalled(state_->thread.get());
}

std::uint32_t Thread::Id() const { return state_ && state_->takesMessages ? state_->id : 0; }

bool Thread::WaitMs(std::uint32_t ms) {
  if (!state_) return true;
  if (state_->id == GetCurrentThreadId()) return false;
  // The end of the process kills threads before their bodies are done; only the thread's own
  // handle tells of that.
  const std::array<HANDLE, 2> doneOrKilled{state_->done.get(), state_->thread.get()};
  if (WaitForMultipleObjects(2, doneOrKilled.data(), FALSE, ms) == WAIT_TIMEOUT) return false;
  WaitForSingleObject(state_->thread.get(), kEndGraceMs);
  state_.reset();
  return true;
}

void Thread::Abandon() {
  if (!state_) return;
  KeepLoaded();
  state_.reset();
}

}  // namespace merovane::platform
