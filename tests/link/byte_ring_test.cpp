#include "link/byte_ring.h"

#include <gtest/gtest.h>

#include <thread>

#include "support/byte_by_byte.h"
#include "support/guarded_buffer.h"

namespace merovane::test {
namespace {

Bytes Counting(std::size_t count, std::uint8_t first = 0) {
  Bytes bytes(count);
  for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::uint8_t>(first + i % 251);
  return bytes;
}

Bytes Held(const ByteRing& ring) {
  Bytes bytes(20000);
  bytes.resize(ring.Peek(bytes));
  return bytes;
}

TEST(ByteRing, KeepsTheLastBytesOfAnAppendLargerThanItself) {
  ByteRing ring;
  ring.Append(Hex("01 02 03"));
  const Bytes all = Counting(10000);
  ring.Append(all);
  EXPECT_EQ(ring.Count(), 9216u);
  EXPECT_EQ(Held(ring), Bytes(all.end() - 9216, all.end()));
}

TEST(ByteRing, OldBytesGiveWayToNewOnes) {
  ByteRing ring;
  ring.Append(Counting(9216));
  ring.Append(Hex("F1 F2"));
  EXPECT_EQ(ring.Count(), 9216u);
  const Bytes held = Held(ring);
  EXPECT_EQ(held.front(), 2);
  EXPECT_EQ(held.back(), 0xF2);
}

TEST(ByteRing, BehavesAsAQueueOfItsCapacity) {
  constexpr std::uint32_t kSeed = 99;
  std::mt19937 random(kSeed);
  ByteRing ring;
  WalkedRing queue;
  std::uint64_t position = 0;
  for (int step = 0; step < 3000; ++step) {
    const std::size_t count = random() % (step % 7 == 0 ? 12000 : 300);
    switch (random() % 6) {
      case 0:
      case 1:
      case 2: {
        const Bytes data = RandomBytes(random, count);
        ring.Append(data);
        queue.Append(data);
        break;
      }
      case 3: {
        GuardedBuffer<std::uint8_t> out(count);
        const std::size_t got = ring.Consume({out.Data(), count});
        ASSERT_EQ(got, std::min(count, queue.Held().size()));
        ASSERT_TRUE(std::equal(out.Data(), out.Data() + got, queue.Held().begin()));
        queue.Drop(got);
        break;
      }
      case 4:
        ring.Visit([&](auto held, auto) { return std::min(count, held.size()); });
        queue.Drop(std::min(count, queue.Held().size()));
        break;
      default:
        if (step % 50 == 0) {
          ring.Clear();
          queue.Drop(queue.Held().size());
        }
    }
    ring.Visit([&](std::span<const std::uint8_t> held, std::uint64_t now) {
      EXPECT_TRUE(std::ranges::equal(held, queue.Held())) << "seed " << kSeed << " step " << step;
      EXPECT_GE(now, position);
      position = now;
      return std::size_t{0};
    });
    if (HasFailure()) return;
  }
}

TEST(ByteRing, HandsEveryByteFromOneThreadToAnother) {
  ByteRing ring;
  constexpr std::size_t kBytes = 200'000;
  std::atomic<std::size_t> taken{0};
  std::thread writer([&] {
    const Bytes chunk = Counting(251);
    for (std::size_t sent = 0; sent < kBytes; sent += chunk.size()) {
      while (sent - taken > 8000) std::this_thread::yield();
      ring.Append(chunk);
    }
  });
  std::array<std::uint8_t, 64> buffer;
  std::size_t wrong = 0;
  while (taken < kBytes) {
    ASSERT_TRUE(ring.WaitNotEmpty(20000));
    const std::size_t got = ring.Consume(buffer);
    for (std::size_t i = 0; i < got; ++i) wrong += buffer[i] != (taken + i) % 251;
    taken += got;
  }
  writer.join();
  EXPECT_EQ(wrong, 0u);
}

TEST(ByteRing, SaysWhenNothingCame) {
  ByteRing ring;
  EXPECT_FALSE(ring.WaitNotEmpty(0));
  EXPECT_FALSE(ring.WaitNotEmpty(5));
  ring.Append(Hex("01"));
  EXPECT_TRUE(ring.WaitNotEmpty(0));
}

}  // namespace
}  // namespace merovane::test
