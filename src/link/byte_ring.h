// A locked byte queue of fixed capacity: it never refuses data, its oldest bytes give way.
#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>

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
  // it stands as before, so do the bytes behind it.
  template <typename Visitor>
  void Visit(Visitor&& visit) {
    const std::lock_guard lock(mutex_);
    Drop(visit(std::span<const std::uint8_t>(storage_).subspan(readOffset_, count_), removed_));
  }

 private:
  void Drop(std::size_t count);

  mutable std::mutex mutex_;
  mutable std::condition_variable filled_;
  mutable bool waited_ = false;
  std::array<std::uint8_t, kRingCapacity> storage_{};
  std::size_t count_ = 0;
  std::size_t readOffset_ = 0;
  std::uint64_t removed_ = 0;
};

}  // namespace merovane
