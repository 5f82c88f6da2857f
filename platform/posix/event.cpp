// Events of a mutex and a condition variable, with an eventfd where a poll waits too.
#include "platform/event.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <climits>
#include <system_error>

#include "platform/mutex.h"
#include "platform/posix/posix_api.h"

namespace merovane::platform {

struct Event::State {
  Mutex mutex;
  ConditionVariable changed;
  std::atomic<bool> set{false};
  UniqueDescriptor descriptor;
};

Event::Event(For waits) : state_(std::make_unique<State>()) {
  if (waits == For::Threads) return;
  state_->descriptor = UniqueDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  if (!state_->descriptor) throw std::system_error(errno, std::generic_category());
}

Event::~Event() = default;

void Event::Set() {
  // Told under the lock: the waiter may destroy the event as soon as it sees it set.
  const MutexLock lock(state_->mutex);
  state_->set.store(true, std::memory_order_release);
  if (state_->descriptor) eventfd_write(state_->descriptor.Get(), 1);
  state_->changed.NotifyAll();
}

void Event::Reset() {
  const MutexLock lock(state_->mutex);
  state_->set.store(false, std::memory_order_release);
  eventfd_t count = 0;
  if (state_->descriptor) eventfd_read(state_->descriptor.Get(), &count);
}

bool Event::IsSet() const { return state_->set.load(std::memory_order_acquire); }

bool Event::WaitMs(std::uint32_t ms) const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
  const MutexLock lock(state_->mutex);
  while (!IsSet()) {
    if (ms == UINT32_MAX) {
      state_->changed.Wait(state_->mutex);
    } else if (!state_->changed.WaitUntil(state_->mutex, end)) {
      return IsSet();
    }
  }
  return true;
}

std::intptr_t Event::Handle() const { return state_->descriptor.Get(); }

namespace {

// Ready now, without waiting, for what `events` says; never for a number that is no descriptor.
bool Ready(std::intptr_t handle, short events) {
  if (handle > INT_MAX) return false;
  pollfd entry{static_cast<int>(handle), events, 0};
  return poll(&entry, 1, 0) == 1 && (entry.revents & events) != 0;
}

}  // namespace

bool CallerEvent::IsNull() const { return handle_ <= 0; }

void CallerEvent::Set() const {
  // A counter that is full is set already; writing to it would wait.
  if (IsNull() || !Ready(handle_, POLLOUT)) return;
  const std::uint64_t one = 1;
  while (write(static_cast<int>(handle_), &one, sizeof one) < 0 && errno == EINTR) {
  }
}

void CallerEvent::Reset() const {
  if (IsNull()) return;
  // One read empties a counter; one made as a semaphore gives 1 at a time. The limit is for
  // descriptors that are something else and never run dry.
  constexpr int kMostReads = 4096;
  for (int i = 0; i < kMostReads && Ready(handle_, POLLIN); ++i) {
    const int descriptor = static_cast<int>(handle_);
    std::uint64_t count = 0;
    iovec into{&count, sizeof count};
    // Another reader may have been quicker: a blocking descriptor must not hold us then.
    ssize_t got = preadv2(descriptor, &into, 1, -1, RWF_NOWAIT);
    if (got < 0 && errno == EOPNOTSUPP) got = read(descriptor, &count, sizeof count);
    if (got <= 0 && errno != EINTR) return;
  }
}

}  // namespace merovane::platform
