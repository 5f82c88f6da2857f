#include "threadqueue/threadqueue.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <deque>
#include <memory>
#include <new>
#include <unordered_map>

#include "platform/mutex.h"

namespace {

using merovane::platform::ConditionVariable;
using merovane::platform::Mutex;
using merovane::platform::MutexLock;

constexpr std::size_t kCapacity = 10000;

class Queue {
 public:
  bool Post(const THREADQUEUE_MESSAGE& message) {
    {
      const MutexLock lock(mutex_);
      if (messages_.size() >= kCapacity) return false;
      messages_.push_back(message);
    }
    posted_.NotifyOne();
    return true;
  }

  bool Take(THREADQUEUE_MESSAGE& message, std::uint32_t timeLimitMs) {
    using SteadyClock = std::chrono::steady_clock;
    const MutexLock lock(mutex_);
    if (messages_.empty() && timeLimitMs == 0) return false;
    const auto end = SteadyClock::now() + std::chrono::milliseconds(timeLimitMs);
    while (messages_.empty()) {
      if (timeLimitMs == UINT32_MAX) {
        posted_.Wait(mutex_);
      } else if (!posted_.WaitUntil(mutex_, end) && messages_.empty()) {
        return false;
      }
    }
    message = messages_.front();
    messages_.pop_front();
    return true;
  }

  bool TakeRange(THREADQUEUE_MESSAGE& message, std::uint32_t firstId, std::uint32_t lastId) {
    const MutexLock lock(mutex_);
    const auto found = std::find_if(messages_.begin(), messages_.end(), [&](const auto& each) {
      return each.id >= firstId && each.id <= lastId;
    });
    if (found == messages_.end()) return false;
    message = *found;
    messages_.erase(found);
    return true;
  }

 private:
  Mutex mutex_;
  ConditionVariable posted_;
  std::deque<THREADQUEUE_MESSAGE> messages_ MEROVANE_GUARDED_BY(mutex_);
};

class Registry {
 public:
  void Add(std::uint32_t threadId, std::shared_ptr<Queue> queue) {
    const MutexLock lock(mutex_);
    queues_[threadId] = std::move(queue);
  }
  void Remove(std::uint32_t threadId) {
    const MutexLock lock(mutex_);
    queues_.erase(threadId);
  }
  std::shared_ptr<Queue> Find(std::uint32_t threadId) {
    const MutexLock lock(mutex_);
    const auto found = queues_.find(threadId);
    return found == queues_.end() ? nullptr : found->second;
  }

 private:
  Mutex mutex_;
  std::unordered_map<std::uint32_t, std::shared_ptr<Queue>> queues_ MEROVANE_GUARDED_BY(mutex_);
};

// Never destroyed: threads may post and end after the process began to exit.
Registry& TheRegistry() {
  static Registry* const registry = new Registry;
  return *registry;
}

// The calling thread's own queue. The flag has no destructor, so it can still be asked when
// the thread's other locals call here while they are destroyed after the queue.
thread_local bool queueIsGone = false;

struct OwnQueue {
  std::shared_ptr<Queue> queue = std::make_shared<Queue>();
  std::uint32_t threadId = threadqueue_current_thread();

  OwnQueue() { TheRegistry().Add(threadId, queue); }
  OwnQueue(const OwnQueue&) = delete;
  OwnQueue& operator=(const OwnQueue&) = delete;
  ~OwnQueue() {
    TheRegistry().Remove(threadId);
    queueIsGone = true;
  }
};

Queue* CallersQueue() {
  if (queueIsGone) return nullptr;
  thread_local OwnQueue own;
  return own.queue.get();
}

}  // namespace

std::uint32_t threadqueue_current_thread() { return static_cast<std::uint32_t>(::gettid()); }

int threadqueue_post(std::uint32_t threadId, std::uint32_t id, std::uintptr_t first,
                     std::intptr_t second) try {
  const auto queue = TheRegistry().Find(threadId);
  return queue && queue->Post({id, first, second}) ? 1 : 0;
} catch (const std::bad_alloc&) {
  return 0;
}

int threadqueue_take(THREADQUEUE_MESSAGE* message, std::uint32_t timeLimitMs) try {
  Queue* const queue = CallersQueue();
  return queue && message && queue->Take(*message, timeLimitMs) ? 1 : 0;
} catch (const std::bad_alloc&) {
  return 0;
}

int threadqueue_take_range(THREADQUEUE_MESSAGE* message, std::uint32_t firstId,
                           std::uint32_t lastId) try {
  Queue* const queue = CallersQueue();
  return queue && message && queue->TakeRange(*message, firstId, lastId) ? 1 : 0;
} catch (const std::bad_alloc&) {
  return 0;
}
