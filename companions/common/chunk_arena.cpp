#include "common/chunk_arena.h"

#include <algorithm>
#include <new>
#include <utility>

namespace companions {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{8} * 1024;
// Each block may end with less than the room of a chunk, and one is being written.
constexpr std::size_t kMaxBlocks = ChunkArena::kMaxBytes / (kBlockBytes - ChunkArena::kMinRoom) + 2;

}  // namespace

ChunkArena::ChunkArena(std::function<Clock::time_point()> now) : now_(std::move(now)) {
  blocks_.reserve(kMaxBlocks);
  if (!AddBlock()) throw std::bad_alloc();
}

std::span<std::byte> ChunkArena::Reserve() {
  if (kBlockBytes - blocks_.back().used < kMinRoom) NextBlock();
  const Block& filling = blocks_.back();
  return {filling.bytes.get() + filling.used, kBlockBytes - filling.used};
}

void ChunkArena::Commit(std::size_t bytes) {
  Block& filling = blocks_.back();
  filling.used += bytes;
  filling.lastCommit = now_();
}

std::size_t ChunkArena::HeldBytes() const { return blocks_.size() * kBlockBytes; }

void ChunkArena::NextBlock() {
  const bool oldestIsSpent = now_() - blocks_.front().lastCommit >= kKeptFor;
  if (!oldestIsSpent && blocks_.size() < kMaxBlocks && AddBlock()) return;
  // Nothing is ever freed before the arena is: a receiver that lags still reads memory.
  std::rotate(blocks_.begin(), blocks_.begin() + 1, blocks_.end());
  blocks_.back().used = 0;
}

bool ChunkArena::AddBlock() {
  std::unique_ptr<std::byte[]> bytes(new (std::nothrow) std::byte[kBlockBytes]);
  if (!bytes) return false;
  blocks_.push_back({std::move(bytes), 0, now_()});
  return true;
}

}  // namespace companions
