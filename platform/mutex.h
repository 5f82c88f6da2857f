// Mutexes whose use clang checks: members say which mutex guards them, functions which one they
// need, and -Wthread-safety finds what keeps to neither. Other compilers see plain std::mutex.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

#ifdef __clang__
#define MEROVANE_THREAD_SAFETY(attribute) __attribute__((attribute))
#else
#define MEROVANE_THREAD_SAFETY(attribute)
#endif

// On a data member: only touched while the mutex is held; for what a pointer points at, PT.
#define MEROVANE_GUARDED_BY(mutex) MEROVANE_THREAD_SAFETY(guarded_by(mutex))
#define MEROVANE_PT_GUARDED_BY(mutex) MEROVANE_THREAD_SAFETY(pt_guarded_by(mutex))
// On a function, after its parameters: its caller holds the mutex, or must not hold it.
#define MEROVANE_REQUIRES(...) MEROVANE_THREAD_SAFETY(requires_capability(__VA_ARGS__))
#define MEROVANE_EXCLUDES(...) MEROVANE_THREAD_SAFETY(locks_excluded(__VA_ARGS__))
// On a function that takes the mutex, lets it go, or takes it when it returns `result`.
#define MEROVANE_ACQUIRE(...) MEROVANE_THREAD_SAFETY(acquire_capability(__VA_ARGS__))
#define MEROVANE_RELEASE(...) MEROVANE_THREAD_SAFETY(release_capability(__VA_ARGS__))
#define MEROVANE_TRY_ACQUIRE(...) MEROVANE_THREAD_SAFETY(try_acquire_capability(__VA_ARGS__))
// On a function whose use of a mutex the check cannot follow.
#define MEROVANE_NO_THREAD_SAFETY_CHECK MEROVANE_THREAD_SAFETY(no_thread_safety_analysis)

namespace merovane::platform {

class MEROVANE_THREAD_SAFETY(capability("mutex")) Mutex {
 public:
  Mutex() = default;
  Mutex(const Mutex&) = delete;
  Mutex& operator=(const Mutex&) = delete;

  void Lock() MEROVANE_ACQUIRE() { mutex_.lock(); }
  void Unlock() MEROVANE_RELEASE() { mutex_.unlock(); }
  bool TryLock() MEROVANE_TRY_ACQUIRE(true) { return mutex_.try_lock(); }

 private:
  friend class ConditionVariable;
  std::mutex mutex_;
};

// Holds a mutex until the end of the block. It can be let go and taken again on the way.
class MEROVANE_THREAD_SAFETY(scoped_lockable) MutexLock {
 public:
  explicit MutexLock(Mutex& mutex) MEROVANE_ACQUIRE(mutex) : mutex_(mutex) { mutex_.Lock(); }
  ~MutexLock() MEROVANE_RELEASE() {
    if (held_) mutex_.Unlock();
  }
  MutexLock(const MutexLock&) = delete;
  MutexLock& operator=(const MutexLock&) = delete;

  void Unlock() MEROVANE_RELEASE() {
    held_ = false;
    mutex_.Unlock();
  }
  void Lock() MEROVANE_ACQUIRE() {
    mutex_.Lock();
    held_ = true;
  }

 private:
  Mutex& mutex_;
  bool held_ = true;
};

// Waits are made in a loop that looks at what is waited for: a wait may end for no reason.
class ConditionVariable {
 public:
  void NotifyOne() { changed_.notify_one(); }
  void NotifyAll() { changed_.notify_all(); }

  void Wait(Mutex& mutex) MEROVANE_REQUIRES(mutex) {
    std::unique_lock lock(mutex.mutex_, std::adopt_lock);
    changed_.wait(lock);
    lock.release();
  }
  // False when `end` has come.
  bool WaitUntil(Mutex& mutex, std::chrono::steady_clock::time_point end) MEROVANE_REQUIRES(mutex) {
    std::unique_lock lock(mutex.mutex_, std::adopt_lock);
    const std::cv_status status = changed_.wait_until(lock, end);
    lock.release();
    return status == std::cv_status::no_timeout;
  }

 private:
  std::condition_variable changed_;
};

}  // namespace merovane::platform
