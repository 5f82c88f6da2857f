#include "library/turnstile.h"

#include <chrono>

namespace merovane::library {

bool Turnstile::Enter() {
  const platform::MutexLock lock(mutex_);
  const std::uint64_t ticket = nextTicket_++;
  while (!ended_ && (serving_ != ticket)) changed_.Wait(mutex_);
  if (ended_) return false;
  inside_ = true;
  return true;
}

void Turnstile::Leave() {
  const platform::MutexLock lock(mutex_);
  ++serving_;
  inside_ = false;
  changed_.NotifyAll();
}

bool Turnstile::End(std::uint32_t limitMs) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(limitMs);
  const platform::MutexLock lock(mutex_);
  ended_ = true;
  changed_.NotifyAll();
  while (inside_ && changed_.WaitUntil(mutex_, end)) {
  }
  return !inside_;
}

}  // namespace merovane::library
