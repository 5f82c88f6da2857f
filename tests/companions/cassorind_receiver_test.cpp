// A channel whose data a thread is told of, over every kind of device.
#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "companions/cassorind_channel.h"
#include "companions/chunks.h"
#include "platform/event.h"
#include "platform/thread.h"

namespace peers {
namespace {

constexpr std::uint32_t kDataMessage = 1124;

class CassorindReceiver : public AnyDevice {
 protected:
  void SetUp() override { EmptyQueue(); }
  void OpenWithReceiver() {
    ASSERT_NE(channel->SetReceiver(kDataMessage, 1, self), 0);
    Open();
  }
  static std::string TakeChunks(std::size_t bytes) {
    return peers::TakeChunks(kDataMessage, bytes);
  }

  const std::uint32_t self = merovane::platform::CurrentThreadId();
};

TEST_P(CassorindReceiver, GetsEverythingInOrder) {
  OpenWithReceiver();
  // Chunks are promised for 512 KiB, so no more may be under way; eight rounds pass that.
  for (int round = 0; round < 8; ++round) {
    const std::string data = EveryByteValue(100'000);
    std::thread sender([&] { peer->Send(data); });
    EXPECT_TRUE(SameBytes(TakeChunks(data.size()), data));
    sender.join();
  }
  char buffer[8];
  EXPECT_EQ(channel->Read(buffer, 8, 10, 0), 0);
}

TEST_P(CassorindReceiver, TakesOverFromReadsAndBack) {
  Open();
  peer->Send("a");
  EXPECT_EQ(ReadAll(*channel, 1), "a");
  ASSERT_NE(channel->SetReceiver(kDataMessage, 1, self), 0);
  peer->Send("b");
  EXPECT_EQ(TakeChunks(1), "b");
  ASSERT_NE(channel->SetReceiver(kDataMessage, 0, self), 0);
  peer->Send("c");
  EXPECT_EQ(ReadAll(*channel, 1), "c");
  Message message;
  EXPECT_FALSE(TakeMessage(message, 0));
}

TEST_P(CassorindReceiver, ChunksAndTheReceiverOutliveTheClose) {
  OpenWithReceiver();
  peer->Send("kept");
  Message message;
  ASSERT_TRUE(TakeMessage(message, kPatienceMs));
  EXPECT_NE(channel->Close(), 0);
  EXPECT_TRUE(std::string_view("kept").starts_with(ChunkOf(message)));
  EmptyQueue();
  Open();
  peer->Send("again");
  EXPECT_EQ(TakeChunks(5), "again");
}

TEST_P(CassorindReceiver, AFullQueueDelaysAndLosesNothing) {
  const int filled = FillQueue();
  OpenWithReceiver();
  const std::string data = EveryByteValue(3000);
  peer->Send(data);
  Message message;
  for (int i = 0; i < filled; ++i) ASSERT_TRUE(TakeMessage(message, 0));
  EXPECT_TRUE(SameBytes(TakeChunks(data.size()), data));
}

TEST_P(CassorindReceiver, CloseEndsPostingToAQueueThatStaysFull) {
  FillQueue();
  if (PostMessageToThread(self, kFillerMessage, 0, 0)) {
    GTEST_SKIP() << "no queue is ever full here";
  }
  OpenWithReceiver();
  peer->Send("never taken");
  EXPECT_NE(channel->Close(), 0);
  Message message;
  while (TakeMessage(message, 0)) EXPECT_EQ(message.id, kFillerMessage);
}

TEST_P(CassorindReceiver, IsDroppedWhenItsThreadHasEndedAndNothingIsLost) {
  merovane::platform::Thread receiver;
  merovane::platform::Event end;
  ASSERT_TRUE(receiver.Start([&end] { end.WaitMs(UINT32_MAX); }));
  ASSERT_NE(channel->SetReceiver(kDataMessage, 1, receiver.Id()), 0);
  Open();
  end.Set();
  ASSERT_TRUE(receiver.WaitMs(kPatienceMs));
  for (int round = 0; round < 2; ++round) {
    peer->Send("read");
    EXPECT_EQ(ReadAll(*channel, 4), "read");
    EXPECT_NE(channel->Close(), 0);
    Open();
  }
}

TEST_P(CassorindReceiver, AVanishedDeviceIsToldToReadsAndWrites) {
  OpenWithReceiver();
  std::thread vanisher([&] { peer->Vanish(); });
  char buffer[8];
  EXPECT_EQ(channel->Read(buffer, 8, kPatienceMs, 0), -1);
  EXPECT_LT(channel->Write("gone", 4, 0), 4);
  vanisher.join();
}

INSTANTIATE_TEST_SUITE_P(Devices, CassorindReceiver, ::testing::ValuesIn(Kinds()),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace peers
