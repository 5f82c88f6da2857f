// A locked byte queue of fixed capacity: it never refuses data, its oldest bytes give way.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/mutex.h"

namespace merovane {

inline constexpr std::size_t kRingCapacity = 9216;

class ByteRing {
 public:
  void Append(std::span<const std::uint8_t> data);
  // Copies the oldest bytes, at most the destination's size, and returns how many.
  std::size_t Peek(std::span<std::uint8_t> destination) const;
  // The same, and removes them.
  std::size_t Consume(std::span<std::uint8_t> destination);
  std::size_t Count() const;
  void Clear();
  // True as soon as the ring holds a byte, false when none came within the time.
  bool WaitNotEmpty(std::uint32_t timeLimitMs) const;

  // Runs `visit(held bytes, position of the first of them)` under the lock and removes as many
  // of the oldest bytes as it returns. The position counts the bytes ever removed or dropped: where
  // it stands as before, so do the bytes after it.
  template <typename Visitor>
  void Visit(Visitor&& visit) {
    const platform::MutexLock lock(mutex_);
    Drop(visit(std::span<const std::uint8_t>(storage_).subspan(readOffset_, count_), removed_));
  }

 private:
  void Drop(std::size_t count) MEROVANE_REQUIRES(mutex_);

  mutable platform::Mutex mutex_;
  mutable platform::ConditionVariable filled_;
  mutable bool waited_ MEROVANE_GUARDED_BY(mutex_) = false;
  std::array<std::uint8_t, kRingCapacity> storage_ MEROVANE_GUARDED_BY(mutex_){};
  std::size_t count_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::size_t readOffset_ MEROVANE_GUARDED_BY(mutex_) = 0;
  std::uint64_t removed_ MEROVANE_GUARDED_BY(mutex_) = 0;
};

}  // namespace merovane
