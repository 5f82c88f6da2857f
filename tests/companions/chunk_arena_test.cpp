#include "common/chunk_arena.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <deque>
#include <random>
#include <span>

namespace {

using companions::ChunkArena;

class ChunkArenaTest : public testing::Test {
 protected:
  struct Kept {
    std::span<std::byte> bytes;
    std::byte mark;
    ChunkArena::Clock::time_point committed;
  };

  // Writes all the room of the next chunk and keeps `wanted` bytes of it, if it has as many.
  void Post(std::size_t wanted) {
    const auto mark = static_cast<std::byte>(++posted);
    const auto room = arena.Reserve();
    ASSERT_GE(room.size(), ChunkArena::kMinRoom);
    const std::size_t count = std::min(wanted, room.size());
    std::memset(room.data(), std::to_integer<int>(mark), room.size());
    arena.Commit(count);
    kept.push_back({room.first(count), mark, now});
    keptBytes += count;
  }
  void ForgetOldest() {
    keptBytes -= kept.front().bytes.size();
    kept.pop_front();
  }
  void ExpectKeptAsTheyWere() {
    for (const Kept& chunk : kept) {
      ASSERT_EQ(chunk.bytes.front(), chunk.mark);
      ASSERT_EQ(chunk.bytes.back(), chunk.mark);
    }
  }

  ChunkArena::Clock::time_point now{};
  ChunkArena arena{[this] { return now; }};
  std::mt19937 random{20250611};
  std::deque<Kept> kept;
  std::size_t keptBytes = 0;
  int posted = 0;
};

TEST_F(ChunkArenaTest, ChunksStayForTheTimePromised) {
  for (int i = 0; i < 3000; ++i) {
    now += std::chrono::milliseconds(random() % 200);
    Post(1 + random() % (i % 3 == 0 ? 8192 : 100));
    while (now - kept.front().committed >= ChunkArena::kKeptFor) ForgetOldest();
    ExpectKeptAsTheyWere();
  }
}

TEST_F(ChunkArenaTest, AFloodTakesNoMoreThanItsBound) {
  const std::size_t idle = arena.HeldBytes();
  for (int i = 0; i < 3000; ++i) {
    Post(1 + random() % 8192);
    while (keptBytes - kept.front().bytes.size() >= ChunkArena::kMaxBytes) ForgetOldest();
    if (i % 16 == 0) ExpectKeptAsTheyWere();
  }
  EXPECT_LE(arena.HeldBytes(), 5 * ChunkArena::kMaxBytes / 4 + 2 * idle);
}

}  // namespace
