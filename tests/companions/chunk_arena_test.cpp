#include "support/chunk_arena.h"

#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <random>
#include <span>

namespace {

struct Kept {
  std::span<std::byte> bytes;
  std::byte mark;
};

// Whatever the sizes, a chunk is whole until 128 KiB more have been committed, even
// while the room reserved next is being written.
TEST(ChunkArena, ChunksStayForTheBytesPromised) {
  companions::ChunkArena arena;
  std::mt19937 random(20250611);
  std::deque<Kept> kept;
  std::size_t keptBytes = 0;
  for (int i = 0; i < 3000; ++i) {
    const auto mark = static_cast<std::byte>(i);
    const auto room = arena.Reserve();
    ASSERT_EQ(room.size(), companions::ChunkArena::kMaxChunk);
    std::memset(room.data(), std::to_integer<int>(mark), room.size());
    const std::size_t count = i % 3 == 0 ? room.size() : 1 + random() % room.size();
    for (const auto& [bytes, expected] : kept) {
      ASSERT_EQ(bytes.front(), expected);
      ASSERT_EQ(bytes.back(), expected);
    }
    arena.Commit(count);
    kept.push_back({room.first(count), mark});
    keptBytes += count;
    // The oldest is no longer promised once the ones after it make 128 KiB.
    while (keptBytes - kept.front().bytes.size() >= companions::ChunkArena::kKeptBytes) {
      keptBytes -= kept.front().bytes.size();
      kept.pop_front();
    }
  }
}

}  // namespace
