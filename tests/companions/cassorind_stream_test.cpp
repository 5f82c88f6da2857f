// A channel that is read and written, over every kind of device.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

#include "cassorind/cassorind.h"
#include "companions/cassorind_channel.h"
#include "companions/tcp_peer.h"

namespace peers {
namespace {

using CassorindStream = AnyDevice;

TEST_P(CassorindStream, CarriesEveryByteValueBothWays) {
  Open();
  const std::string data = EveryByteValue(9000);
  std::thread sender([&] { peer->Send(data); });
  EXPECT_TRUE(SameBytes(ReadAll(*channel, data.size()), data));
  sender.join();
  std::string received;
  std::thread receiver([&] { received = peer->Receive(data.size()); });
  EXPECT_EQ(channel->Write(data.data(), 9000, 0), 9000);
  receiver.join();
  EXPECT_TRUE(SameBytes(received, data));
}

TEST_P(CassorindStream, ReadsWhatIsThereWithoutWaitingForMore) {
  Open();
  peer->Send("abcdef");
  char buffer[4];
  EXPECT_EQ(channel->Read(buffer, 4, kPatienceMs, 0), 4);
  EXPECT_EQ(std::string(buffer, 4), "abcd");
  EXPECT_EQ(channel->Read(buffer, 4, kPatienceMs, 0), 2);
  EXPECT_EQ(std::string(buffer, 2), "ef");
  EXPECT_EQ(channel->Read(buffer, 4, 20, 0), 0);
  EXPECT_EQ(channel->Read(buffer, 4, 0, 0), 0);
  EXPECT_EQ(channel->Read(nullptr, 4, 0, 0), 0);
  EXPECT_EQ(channel->Write(nullptr, 4, 0), 0);
}

TEST_P(CassorindStream, ClearDropsFetchedAndUnfetchedInput) {
  Open();
  peer->Send("1234");
  EXPECT_EQ(ReadAll(*channel, 1, 1), "1");
  peer->Send("5678");
  peer->AwaitDelivery();
  EXPECT_NE(channel->Clear(), 0);
  peer->Send("z");
  EXPECT_EQ(ReadAll(*channel, 1), "z");
}

TEST_P(CassorindStream, ClearReturnsWhileTheDeviceKeepsSending) {
  constexpr int kEnough = 10'000;
  Open();
  std::atomic<int> sent{0};
  std::atomic<bool> flooding{true};
  std::atomic<bool> flooded{false};
  std::thread flood([&] {
    const std::string piece(65536, 'x');
    while (flooding && sent < kEnough) {
      peer->Send(piece);
      ++sent;
    }
    flooded = true;
  });
  EXPECT_EQ(ReadAll(*channel, 1, 1), "x");
  EXPECT_NE(channel->Clear(), 0);
  EXPECT_LT(sent, kEnough);
  flooding = false;
  std::string rest(65536, '\0');
  while (!flooded) channel->Read(rest.data(), static_cast<std::uint32_t>(rest.size()), 10, 0);
  flood.join();
}

TEST_P(CassorindStream, AVanishedDeviceEndsReadsAndWrites) {
  Open();
  std::thread vanisher([&] { peer->Vanish(); });
  char buffer[8];
  EXPECT_EQ(channel->Read(buffer, 8, kPatienceMs, 0), -1);
  vanisher.join();
  EXPECT_EQ(channel->Read(buffer, 8, kPatienceMs, 0), -1);
  EXPECT_LT(channel->Write("gone", 4, 0), 4);
  EXPECT_NE(channel->Close(), 0);
}

TEST_P(CassorindStream, WhatCameBeforeTheEndIsReadFirst) {
  Open();
  peer->Send("last words");
  EXPECT_EQ(ReadAll(*channel, 4, 4), "last");
  peer->Vanish();
  EXPECT_EQ(ReadAll(*channel, 6), " words");
  EXPECT_EQ(channel->Read(nullptr, 0, 0, 0), 0);
  char buffer[8];
  EXPECT_EQ(channel->Read(buffer, 8, kPatienceMs, 0), -1);
}

TEST_P(CassorindStream, AWriteNotedBeforeTheEndIsReportedShort) {
  Open();
  peer->Vanish();
  EXPECT_LT(channel->Write("nobody", 6, 0), 6);
}

TEST_P(CassorindStream, AWriteThatNobodyTakesIsReportedShort) {
  Open();
  const std::string data(32 << 20, 'x');
  const std::int32_t written =
      channel->Write(data.data(), static_cast<std::uint32_t>(data.size()), 0);
  EXPECT_GT(written, 0);
  EXPECT_LT(written, static_cast<std::int32_t>(data.size()));
}

TEST_P(CassorindStream, CloseWakesABlockedReadAndWrite) {
  Open();
  std::thread reader([&] {
    char buffer[8];
    EXPECT_EQ(channel->Read(buffer, 8, UINT32_MAX, 0), -1);
  });
  std::thread writer([&] {
    const std::string data(32 << 20, 'x');
    EXPECT_LT(channel->Write(data.data(), static_cast<std::uint32_t>(data.size()), 0),
              static_cast<std::int32_t>(data.size()));
  });
  EXPECT_FALSE(peer->Receive(1).empty());
  EXPECT_NE(channel->Close(), 0);
  reader.join();
  writer.join();
}

TEST_P(CassorindStream, WritesOfSeveralThreadsDoNotMix) {
  Open();
  constexpr int kRounds = 20;
  constexpr std::uint32_t kLength = 3000;
  const auto writeRuns = [&](char letter) {
    const std::string run(kLength, letter);
    for (int i = 0; i < kRounds; ++i) EXPECT_EQ(channel->Write(run.data(), kLength, 0), 3000);
  };
  std::thread first(writeRuns, 'a');
  std::thread second(writeRuns, 'b');
  for (int i = 0; i < 2 * kRounds; ++i) {
    const std::string run = peer->Receive(kLength);
    ASSERT_EQ(run.size(), kLength);
    ASSERT_EQ(run.find_first_not_of(run[0]), std::string::npos);
  }
  first.join();
  second.join();
}

INSTANTIATE_TEST_SUITE_P(Devices, CassorindStream, ::testing::ValuesIn(Kinds()),
                         [](const auto& each) { return each.param; });

TEST(CassorindChannel, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(CreateChannel(nullptr, 0), 0);
  CassorindChannel* none = nullptr;
  EXPECT_EQ(CreateChannel(&none, 1), 0);
  ReleaseChannel(nullptr);

  const ChannelPointer channel = NewChannel();
  EXPECT_EQ(channel->Open(nullptr), 0);
  for (const char* device : {"no-such-device", "socket://", "socket://127.0.0.1", "socket://:80",
                             "socket://127.0.0.1:1"}) {
    const PortDevice named(kPort, device);
    EXPECT_FALSE(OpenAt(*channel, kPort, 115200)) << device;
  }
  EXPECT_FALSE(OpenAt(*channel, 0, 115200));
  EXPECT_FALSE(OpenAt(*channel, 250, 115200));

  char buffer[1];
  EXPECT_EQ(channel->Read(buffer, 1, kPatienceMs, 0), -1);
  EXPECT_EQ(channel->Write("x", 1, 0), 0);
  EXPECT_EQ(channel->Clear(), 0);
  EXPECT_EQ(channel->Close(), 0);
}

TEST(CassorindChannel, IsClosedByItsRelease) {
  TcpPeer peer;
  const PortDevice device(kPort, peer.DeviceName());
  ChannelPointer channel = NewChannel();
  ASSERT_TRUE(OpenAt(*channel, kPort, 0));
  EXPECT_FALSE(OpenAt(*channel, kPort, 0));
  peer.Accept();
  channel.reset();
  EXPECT_EQ(peer.Receive(1), "");
}

}  // namespace
}  // namespace peers
