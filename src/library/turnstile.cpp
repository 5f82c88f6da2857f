#include "library/turnstile.h"

#include <chrono>

namespace merovane::library {

bool Turnstile::Enter() {
  const platform::MutexLock lock(mutex_);
  if (entries_ > 0 && inside_ == std::this_thread::get_id()) {
    if (ended_) return false;
    ++entries_;
    return true;
  }
  const std::uint64_t ticket = nextTicket_++;
  while (!ended_ && (serving_ != ticket)) changed_.Wait(mutex_);
  if (ended_) return false;
  inside_ = std::this_thread::get_id();
  entries_ = 1;
  return true;
}

void Turnstile::Leave() {
  const platform::MutexLock lock(mutex_);
  if (--entries_ > 0) return;
  ++serving_;
  changed_.NotifyAll();
}

bool Turnstile::End(std::uint32_t limitMs) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(limitMs);
  const platform::MutexLock lock(mutex_);
  ended_ = true;
  changed_.NotifyAll();
  while (entries_ > 0 && changed_.WaitUntil(mutex_, end)) {
  }
  return entries_ == 0;
}

}  // namespace merovane::library
