#include "support/worker_thread.h"

#include <pthread.h>
#include <signal.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace companions {

struct WorkerThread::State {
  std::mutex mutex;
  std::condition_variable ended;
  bool hasEnded = false;
  std::thread thread;
};

WorkerThread::~WorkerThread() {
  if (state_) state_->thread.detach();
}

namespace {

// The host's signal handlers are not to run on a thread it does not know.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &callers_);
  }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;
  ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &callers_, nullptr); }

 private:
  sigset_t callers_{};
};

}  // namespace

bool WorkerThread::Start(std::function<void()> body) {
  if (state_) return false;
  auto state = std::make_shared<State>();
  const SignalsBlocked blocked;
  try {
    state->thread = std::thread([state, body = std::move(body)]() mutable {
      body();
      body = nullptr;
      {
        std::lock_guard lock(state->mutex);
        state->hasEnded = true;
      }
      state->ended.notify_all();
    });
  } catch (const std::system_error&) {
    state = nullptr;
  }
  state_ = std::move(state);
  return state_ != nullptr;
}

bool WorkerThread::WaitMs(std::uint32_t ms) {
  if (!state_) return true;
  {
    std::unique_lock lock(state_->mutex);
    if (!state_->ended.wait_for(lock, std::chrono::milliseconds(ms),
                                [this] { return state_->hasEnded; })) {
      return false;
    }
  }
  state_->thread.join();
  state_ = nullptr;
  return true;
}

}  // namespace companions
