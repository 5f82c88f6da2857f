// Threads of the C library, with every signal blocked.
#include "platform/thread.h"

#include <dlfcn.h>
#include <pthread.h>
#include <signal.h>

#include <new>
#include <utility>

#include "platform/message_queue.h"

namespace merovane::platform {

struct Thread::State {
  std::function<void()> body;
  bool takesMessages = false;
  Event started;
  Event done;
  pthread_t thread{};
  std::uint32_t id = 0;

  static void* Run(void* argument);
};

namespace {

// Signals are for the host program's threads: a handler of its must not run on ours.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;

 private:
  sigset_t before_{};
};

// Keeps this library's code in memory for as long as the process lives.
void KeepLoaded() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&KeepLoaded), &info) == 0 || info.dli_fname == nullptr) return;
  dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
}

}  // namespace

void* Thread::State::Run(void* argument) {
  const std::unique_ptr<std::shared_ptr<State>> owned(
      static_cast<std::shared_ptr<State>*>(argument));
  State& state = **owned;
  if (state.takesMessages) {
    CreateMessageQueue();
    state.id = CurrentThreadId();
    state.started.Set();
  }
  try {
    state.body();
  } catch (...) {  // NOLINT(bugprone-empty-catch): it ends the thread and nothing else
  }
  state.body = nullptr;
  state.done.Set();
  return nullptr;
}

bool Thread::Start(std::function<void()> body) {
  if (!Create(std::move(body), true)) return false;
  state_->started.WaitMs(UINT32_MAX);
  return true;
}

bool Thread::Create(std::function<void()> body, bool takesMessages) {
  if (state_ && !WaitMs(0)) return false;
  try {
    auto state = std::make_shared<State>();
    state->body = std::move(body);
    state->takesMessages = takesMessages;
    auto argument = std::make_unique<std::shared_ptr<State>>(state);
    {
      const SignalsBlocked blocked;
      if (pthread_create(&state->thread, nullptr, State::Run, argument.get()) != 0) return false;
    }
    static_cast<void>(argument.release());
    state_ = std::move(state);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

bool Thread::Running() const { return state_ && !state_->done.IsSet(); }

std::uint32_t Thread::Id() const { return state_ ? state_->id : 0; }

bool Thread::WaitMs(std::uint32_t ms) {
  if (!state_) return true;
  if (pthread_equal(state_->thread, pthread_self()) || !state_->done.WaitMs(ms)) return false;
  pthread_join(state_->thread, nullptr);
  state_.reset();
  return true;
}

void Thread::Abandon() {
  if (!state_) return;
  KeepLoaded();
  pthread_detach(state_->thread);
  state_.reset();
}

}  // namespace merovane::platform
