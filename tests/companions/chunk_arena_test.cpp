#include "common/chunk_arena.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
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

  // Takes chunk after chunk and writes all its room. Those that are not spent stay as they were.
  void Take(unsigned pauseMs, const std::function<bool(const Kept&)>& spent) {
    for (int i = 0; i < 3000; ++i) {
      now += std::chrono::milliseconds(random() % pauseMs);
      const auto room = arena.Reserve();
      ASSERT_GE(room.size(), ChunkArena::kMinRoom);
      const std::size_t wanted = 1 + random() % (i % 3 == 0 ? 8192 : 100);
      const auto bytes = room.first(std::min(wanted, room.size()));
      std::ranges::fill(room, static_cast<std::byte>(i));
      arena.Commit(bytes.size());
      kept.push_back({bytes, static_cast<std::byte>(i), now});
      keptBytes += bytes.size();
      for (; spent(kept.front()); kept.pop_front()) keptBytes -= kept.front().bytes.size();
      for (const Kept& chunk : kept) {
        ASSERT_EQ(chunk.bytes.front(), chunk.mark);
        ASSERT_EQ(chunk.bytes.back(), chunk.mark);
      }
    }
  }

  ChunkArena::Clock::time_point now{};
  ChunkArena arena{[this] { return now; }};
  std::mt19937 random{20250611};
  std::deque<Kept> kept;
  std::size_t keptBytes = 0;
};

TEST_F(ChunkArenaTest, ChunksStayForTheTimePromised) {
  Take(200, [&](const Kept& oldest) { return now - oldest.committed >= ChunkArena::kKeptFor; });
}

TEST_F(ChunkArenaTest, AFloodTakesNoMoreThanItsBound) {
  const std::size_t idle = arena.HeldBytes();
  Take(1, [&](const Kept& oldest) {
    return keptBytes - oldest.bytes.size() >= ChunkArena::kMaxBytes;
  });
  EXPECT_LE(arena.HeldBytes(), 5 * ChunkArena::kMaxBytes / 4 + 2 * idle);
}

}  // namespace
