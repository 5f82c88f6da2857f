// Memory for chunks that are handed to receivers by address and never given back.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace companions {

// A chunk stays as it is for kKeptFor, however slow its receiver, unless kMaxBytes come meanwhile.
// The arena grows only as far as that asks for: an idle one is one block, one that a serial port at
// 115200 baud fills all the time is ten.
class ChunkArena {
 public:
  using Clock = std::chrono::steady_clock;

  static constexpr std::size_t kMinRoom = std::size_t{1} * 1024;
  static constexpr std::size_t kMaxBytes = std::size_t{512} * 1024;
  static constexpr Clock::duration kKeptFor = std::chrono::seconds{5};

  explicit ChunkArena(std::function<Clock::time_point()> now = Clock::now);

  // Where the next chunk may be written, at least kMinRoom bytes.
  std::span<std::byte> Reserve();
  // Keeps the first `bytes` bytes of what was reserved last.
  void Commit(std::size_t bytes);

  std::size_t HeldBytes() const;

 private:
  struct Block {
    std::unique_ptr<std::byte[]> bytes;
    std::size_t used = 0;
    Clock::time_point lastCommit;
  };

  void NextBlock();
  bool AddBlock();

  std::function<Clock::time_point()> now_;
  std::vector<Block> blocks_;  // the oldest first; the last is being filled
};

}  // namespace companions
