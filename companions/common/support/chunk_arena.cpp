#include "support/chunk_arena.h"

namespace companions {

namespace {

constexpr std::size_t kArenaBytes = std::size_t{256} * 1024;
// One chunk's room may be left unused at the end and one more is written ahead of the last commit.
static_assert(kArenaBytes >= ChunkArena::kKeptBytes + 3 * ChunkArena::kMaxChunk);

}  // namespace

ChunkArena::ChunkArena() : memory_(std::make_unique_for_overwrite<std::byte[]>(kArenaBytes)) {}

std::span<std::byte> ChunkArena::Reserve() {
  if (kArenaBytes - next_ < kMaxChunk) next_ = 0;
  return {memory_.get() + next_, kMaxChunk};
}

void ChunkArena::Commit(std::size_t bytes) { next_ += bytes; }

}  // namespace companions
