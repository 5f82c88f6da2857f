#include "platform/event.h"

#include <poll.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <climits>
#include <condition_variable>
#include <mutex>

namespace merovane::platform {

struct Event::Wait {
  std::mutex mutex;
  std::condition_variable changed;
  std::atomic<bool> set{false};
};

Event::Event() : wait_(std::make_unique<Wait>()) {}
Event::~Event() = default;

void Event::Set() {
  // Told under the lock: the waiter may destroy the event as soon as it sees it set.
  const std::lock_guard lock(wait_->mutex);
  wait_->set.store(true, std::memory_order_release);
  wait_->changed.notify_all();
}

void Event::Reset() {
  const std::lock_guard lock(wait_->mutex);
  wait_->set.store(false, std::memory_order_release);
}

bool Event::IsSet() const { return wait_->set.load(std::memory_order_acquire); }

bool Event::WaitMs(std::uint32_t ms) {
  std::unique_lock lock(wait_->mutex);
  const auto isSet = [this] { return IsSet(); };
  if (ms == UINT32_MAX) {
    wait_->changed.wait(lock, isSet);
    return true;
  }
  return wait_->changed.wait_for(lock, std::chrono::milliseconds(ms), isSet);
}

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
