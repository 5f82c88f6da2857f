// Lets threads at one thing one after another, in the order in which they come, until it ends. A
// thread may enter again inside: while it shows a message box, the system runs its caller's
// handlers.
#pragma once

#include <cstdint>
#include <thread>

#include "platform/mutex.h"

namespace merovane::library {

class Turnstile {
 public:
  // Waits for this thread's turn; false when the thing has ended.
  [[nodiscard]] bool Enter();
  // Of the thread that entered.
  void Leave();
  // For good: whoever waits is sent away, and nobody is let in any more. True once nobody is
  // inside; false when that takes longer than the limit.
  bool End(std::uint32_t limitMs);

 private:
  platform::Mutex mutex_;
  platform::ConditionVariable changed_;
  std::uint64_t nextTicket_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint64_t serving_ MEROVANE_GUARDED_BY(mutex_) = 0;
  // How often the thread that is inside has entered; 0 when none is.
  int entries_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::thread::id inside_ MEROVANE_GUARDED_BY(mutex_);
  bool ended_ MEROVANE_GUARDED_BY(mutex_) = false;
};

// A thread's turn, until the end of the block.
class Turn {
 public:
  explicit Turn(Turnstile& turnstile) : turnstile_(turnstile), entered_(turnstile.Enter()) {}
  ~Turn() {
    if (entered_) turnstile_.Leave();
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

  // False when the thing has ended.
  explicit operator bool() const { return entered_; }

 private:
  Turnstile& turnstile_;
  const bool entered_;
};

}  // namespace merovane::library
