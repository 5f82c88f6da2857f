#include "link/byte_ring.h"

#include <algorithm>
#include <chrono>
#include <cstring>

namespace merovane {

void ByteRing::Append(std::span<const std::uint8_t> data) {
  if (data.empty()) return;
  const platform::MutexLock lock(mutex_);
  if (data.size() > kRingCapacity) {
    Drop(count_);
    removed_ += data.size() - kRingCapacity;
    data = data.last(kRingCapacity);
  } else if (count_ + data.size() > kRingCapacity) {
    Drop(count_ + data.size() - kRingCapacity);
  }
  if (readOffset_ != 0) {
    std::memmove(storage_.data(), storage_.data() + readOffset_, count_);
    readOffset_ = 0;
  }
  std::memcpy(storage_.data() + count_, data.data(), data.size());
  count_ += data.size();
  if (waited_) filled_.NotifyAll();
}

std::size_t ByteRing::Peek(std::span<std::uint8_t> destination) const {
  const platform::MutexLock lock(mutex_);
  const std::size_t taken = std::min(destination.size(), count_);
  if (taken > 0) std::memcpy(destination.data(), storage_.data() + readOffset_, taken);
  return taken;
}

std::size_t ByteRing::Consume(std::span<std::uint8_t> destination) {
  std::size_t taken = 0;
  Visit([&](std::span<const std::uint8_t> held, std::uint64_t) {
    taken = std::min(destination.size(), held.size());
    if (taken > 0) std::memcpy(destination.data(), held.data(), taken);
    return taken;
  });
  return taken;
}

std::size_t ByteRing::Count() const {
  const platform::MutexLock lock(mutex_);
  return count_;
}

void ByteRing::Clear() {
  const platform::MutexLock lock(mutex_);
  Drop(count_);
}

bool ByteRing::WaitNotEmpty(std::uint32_t timeLimitMs) const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeLimitMs);
  const platform::MutexLock lock(mutex_);
  waited_ = true;
  while (count_ == 0 && filled_.WaitUntil(mutex_, end)) {
  }
  waited_ = false;
  return count_ > 0;
}

void ByteRing::Drop(std::size_t count) {
  count = std::min(count, count_);
  count_ -= count;
  readOffset_ = count_ == 0 ? 0 : readOffset_ + count;
  removed_ += count;
}

}  // namespace merovane
