#include "link/frame_search.h"

#include <gtest/gtest.h>

#include "support/byte_by_byte.h"
#include "support/scripted_handset.h"

namespace merovane::test {
namespace {

struct FrameSearchTest : ::testing::Test {
  std::string Extract() {
    std::string frame;
    last = search.Extract([&](std::span<const std::uint8_t> found) { frame = ToHex(found); });
    return frame;
  }
  void Append(const char* hex) { ring.Append(Hex(hex)); }
  std::string Held() {
    Bytes bytes(9216);
    bytes.resize(ring.Peek(bytes));
    return ToHex(bytes);
  }

  ByteRing ring;
  FrameSearch search{ring};
  FrameSearch::Outcome last;
};

TEST_F(FrameSearchTest, LooksAtNothingShorterThanTheShortestFrame) {
  Append("7E 01 02 03 04 05 06 07 7E");
  EXPECT_EQ(Extract(), "");
  EXPECT_FALSE(last.flagSeen);
  EXPECT_EQ(ring.Count(), 9u);
  Append("00");
  EXPECT_EQ(Extract(), "7E 01 02 03 04 05 06 07 7E");
  EXPECT_EQ(Held(), "00");
}

TEST_F(FrameSearchTest, DiscardsNoiseAndKeepsAStartedFrame) {
  Append("01 02 03 04 05 06 07 08 09 0A 0B");
  EXPECT_EQ(Extract(), "");
  EXPECT_FALSE(last.flagSeen);
  EXPECT_EQ(ring.Count(), 0u);

  Append("01 02 03 04 05 06 07 7E 7E 7E 0A 0B");
  EXPECT_EQ(Extract(), "");
  EXPECT_TRUE(last.flagSeen);
  EXPECT_EQ(Held(), "7E 0A 0B");

  Append("01 02 03 04 05 06 07 7E");
  EXPECT_EQ(Extract(), "7E 0A 0B 01 02 03 04 05 06 07 7E");
  EXPECT_EQ(ring.Count(), 0u);
}

TEST_F(FrameSearchTest, KeepsTheLastOfManyFlags) {
  ring.Append(Bytes(5000, 0x7E));
  EXPECT_EQ(Extract(), "");
  EXPECT_TRUE(last.flagSeen);
  EXPECT_EQ(Held(), "7E");
}

TEST_F(FrameSearchTest, LosesTheSecondOfTwoFramesWithOneFlagBetween) {
  Append("7E 01 02 03 04 05 06 07 08 7E 11 12 13 14 15 16 17 18 7E");
  EXPECT_EQ(Extract(), "7E 01 02 03 04 05 06 07 08 7E");
  EXPECT_EQ(Extract(), "");
  EXPECT_EQ(ring.Count(), 9u);
  Append("00");
  EXPECT_EQ(Extract(), "");
  EXPECT_EQ(Held(), "7E 00");
}

TEST_F(FrameSearchTest, TakesAFrameThatFillsTheRing) {
  Bytes frame(9216, 0x55);
  frame.front() = frame.back() = 0x7E;
  ring.Append(frame);
  EXPECT_EQ(Extract(), ToHex(frame));
  // One more byte, and its opening flag has given way.
  frame.insert(frame.begin() + 1, 0x55);
  ring.Append(frame);
  EXPECT_EQ(Extract(), "");
  EXPECT_EQ(Held(), "7E");
}

// Going on where the last search stopped must not change what is found.
TEST(FrameSearchAgainstWalk, FindsDiscardsAndReportsTheSame) {
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    std::mt19937 random(seed);
    ByteRing ring;
    FrameSearch search(ring);
    WalkedRing walked;
    const unsigned density = seed % 4 == 0 ? 400 : 2 + seed % 60;
    for (int step = 0; step < 1000; ++step) {
      if (random() % 200 == 0) {
        // Commands empty the ring, and take from it by themselves.
        const std::size_t dropped = random() % 2 == 0 ? ring.Count() : ring.Count() / 2;
        ring.Visit([&](auto, auto) { return dropped; });
        walked.Drop(dropped);
      }
      Bytes chunk = RandomBytes(random, random() % (step % 40 == 0 ? 3000 : 65), density);
      if (random() % 20 == 0) chunk = Bytes(random() % 30, 0x7E);
      if (random() % 8 == 0) {
        chunk = WireFrame(true, 1, 2, RandomBytes(random, random() % 200, 20));
      }
      ring.Append(chunk);
      walked.Append(chunk);
      for (bool again = true; again;) {
        Bytes found;
        const FrameSearch::Outcome outcome = search.Extract(
            [&](std::span<const std::uint8_t> whole) { found.assign(whole.begin(), whole.end()); });
        bool flagSeen = false;
        const Bytes frame = walked.Extract(flagSeen);
        ASSERT_EQ(found, frame) << "seed " << seed << " step " << step;
        ASSERT_EQ(outcome.flagSeen, flagSeen) << "seed " << seed << " step " << step;
        ring.Visit([&](std::span<const std::uint8_t> held, std::uint64_t) {
          EXPECT_TRUE(std::ranges::equal(held, walked.Held()))
              << "seed " << seed << " step " << step;
          return std::size_t{0};
        });
        if (HasFailure()) return;
        again = !frame.empty() || random() % 4 == 0;
      }
    }
  }
}

}  // namespace
}  // namespace merovane::test
