#include "support/worker_thread.h"

#include <process.h>
#include <windows.h>

#include <array>
#include <utility>

namespace companions {

// Two handles tell of the end. A thread cannot end for the system while a library is being
// unloaded, so the event stands for the end of its body; a thread that was killed on the
// way out of the process never sets the event, but its own handle is signalled.
struct WorkerThread::State {
  std::function<void()> body;
  HANDLE ended = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE thread = nullptr;
  HMODULE library = nullptr;

  State() = default;
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() {
    if (thread) ::CloseHandle(thread);
    if (ended) ::CloseHandle(ended);
  }
};

namespace {

template <typename State>
unsigned __stdcall Run(void* argument) {
  HMODULE library;
  {
    const std::unique_ptr<std::shared_ptr<State>> owned(
        static_cast<std::shared_ptr<State>*>(argument));
    State& state = **owned;
    library = state.library;
    state.body();
    state.body = nullptr;
    ::SetEvent(state.ended);
  }
  // The thread holds the library it runs in, and lets it go without returning into it.
  ::FreeLibraryAndExitThread(library, 0);
}

}  // namespace

WorkerThread::~WorkerThread() = default;

bool WorkerThread::Start(std::function<void()> body) {
  if (state_) return false;
  auto state = std::make_shared<State>();
  state->body = std::move(body);
  if (!state->ended ||
      !::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                            reinterpret_cast<LPCWSTR>(&Run<State>), &state->library)) {
    return false;
  }
  auto argument = std::make_unique<std::shared_ptr<State>>(state);
  // Suspended at first, so that the handle is stored before the thread can end.
  const auto thread =
      ::_beginthreadex(nullptr, 0, &Run<State>, argument.get(), CREATE_SUSPENDED, nullptr);
  if (thread == 0) {
    ::FreeLibrary(state->library);
    return false;
  }
  argument.release();
  state->thread = reinterpret_cast<HANDLE>(thread);
  ::ResumeThread(state->thread);
  state_ = std::move(state);
  return true;
}

bool WorkerThread::WaitMs(std::uint32_t ms) {
  if (!state_) return true;
  const std::array<HANDLE, 2> ends{state_->ended, state_->thread};
  const DWORD result =
      ::WaitForMultipleObjects(static_cast<DWORD>(ends.size()), ends.data(), FALSE, ms);
  if (result == WAIT_TIMEOUT) return false;
  state_ = nullptr;
  return true;
}

}  // namespace companions
