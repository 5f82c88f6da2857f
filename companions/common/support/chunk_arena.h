// Memory for chunks that are handed to receivers by address and never given back.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace companions {

// A circular arena: a chunk stays as it is until kKeptBytes more have been committed.
class ChunkArena {
 public:
  static constexpr std::size_t kMaxChunk = std::size_t{16} * 1024;
  static constexpr std::size_t kKeptBytes = std::size_t{128} * 1024;

  ChunkArena();

  // Where the next chunk may be written, kMaxChunk bytes.
  std::span<std::byte> Reserve();
  // Keeps the first `bytes` bytes of what was reserved last.
  void Commit(std::size_t bytes);

 private:
  std::unique_ptr<std::byte[]> memory_;
  std::size_t next_ = 0;
};

}  // namespace companions
