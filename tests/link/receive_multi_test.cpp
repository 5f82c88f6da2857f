#include "support/command_fixture.h"

namespace merovane::test {
namespace {

struct ReceiveMulti : CommandFixture {
  ReceiveMulti() {
    for (std::size_t i = 0; i < 3; ++i) {
      buffers[i] = storage[i].Data();
      storage[i][0] = 1;
    }
  }
  Result Collect(std::uint32_t maxCount = 2) {
    return phone.link.ReceiveMulti({9, 1}, buffers, maxCount, 10, &count, lengths, 200);
  }

  // One more than the largest count that is asked for.
  GuardedBuffer<std::uint8_t> storage[3] = {GuardedBuffer<std::uint8_t>(10),
                                            GuardedBuffer<std::uint8_t>(10),
                                            GuardedBuffer<std::uint8_t>(10)};
  std::uint8_t* buffers[3];
  std::uint32_t lengths[3] = {};
  std::uint32_t count = 77;
};

TEST_F(ReceiveMulti, CollectsUntilTheLimitAndLogsWhatItTakes) {
  handset.Say(9, 1, "0A");
  handset.Say(9, 0, "0B", 50);
  handset.Say(9, 1, "0C 0D", 149);
  const std::uint32_t start = clock.NowMs();
  EXPECT_EQ(Collect(), Result::Success);
  EXPECT_EQ(clock.NowMs() - start, 200u);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(storage[0].Hex(lengths[0]), "00 00 00 00 00 09 09 01 0A");
  EXPECT_EQ(storage[1].Hex(lengths[1]), "00 00 00 00 00 0A 09 01 0C 0D");
  EXPECT_THAT(Log(), ::testing::ElementsAre("<-- 7E 00 00 00 00 00 09 09 01 0A 7E",
                                            "<-- 7E 00 00 00 00 00 0A 09 01 0C 0D 7E"));
}

TEST_F(ReceiveMulti, TakesOneMoreThanTheCountAndRefusesTheNext) {
  for (int i = 0; i < 3; ++i) handset.Say(9, 1);
  EXPECT_EQ(Collect(), Result::Success);
  EXPECT_EQ(count, 3u);
  storage[0][0] = 1;
  for (int i = 0; i < 4; ++i) handset.Say(9, 1);
  EXPECT_EQ(Collect(), Result::BufferTooSmall);
}

TEST_F(ReceiveMulti, RefusesAFrameLargerThanABuffer) {
  handset.Say(9, 1, "01 02 03");
  EXPECT_EQ(Collect(), Result::BufferTooSmall);
}

TEST_F(ReceiveMulti, RefusesAZeroFilledFirstBufferAndMissingArrays) {
  storage[0][0] = 0;
  const std::uint32_t start = clock.NowMs();
  EXPECT_EQ(Collect(), Result::InvalidParam);
  storage[0][0] = 1;
  EXPECT_EQ(phone.link.ReceiveMulti({9, 1}, buffers, 2, 10, &count, nullptr, 200),
            Result::InvalidParam);
  EXPECT_EQ(phone.link.ReceiveMulti({9, 1}, nullptr, 2, 10, &count, lengths, 200),
            Result::InvalidParam);
  EXPECT_EQ(clock.NowMs(), start);
}

TEST_F(ReceiveMulti, GivesSixWhenNoneCame) {
  handset.Say(9, 0);
  EXPECT_EQ(Collect(), Result::NoData);
  EXPECT_EQ(count, 0u);
  static_cast<void>(phone.link.Close());
  EXPECT_EQ(Collect(), Result::NoData) << "ends by its limit on a closed port too";
}

}  // namespace
}  // namespace merovane::test
