#include "cassorind/cassorind.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "companions/cassorind_channel.h"

namespace peers {
namespace {

std::size_t OpenDescriptors() {
  return static_cast<std::size_t>(std::distance(
      std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator()));
}

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
  EXPECT_EQ(channel->Read(buffer, 4, kPatience, 0), 4);
  EXPECT_EQ(std::string(buffer, 4), "abcd");
  EXPECT_EQ(channel->Read(buffer, 4, kPatience, 0), 2);
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

TEST_P(CassorindStream, AVanishedDeviceEndsReadsAndWrites) {
  Open();
  std::thread vanisher([&] { peer->Vanish(); });
  char buffer[8];
  EXPECT_EQ(channel->Read(buffer, 8, kPatience, 0), -1);
  vanisher.join();
  EXPECT_EQ(channel->Read(buffer, 8, kPatience, 0), -1);
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
  EXPECT_EQ(channel->Read(buffer, 8, kPatience, 0), -1);
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

TEST_P(CassorindStream, OpensAndClosesLeaveNothingOpen) {
  const auto cycle = [&] {
    Open();
    ASSERT_NE(channel->Close(), 0);
    if (GetParam() == std::string_view("tcp")) peer->Vanish();
  };
  cycle();
  const std::size_t before = OpenDescriptors();
  for (int i = 0; i < 50; ++i) cycle();
  EXPECT_EQ(OpenDescriptors(), before);
}

INSTANTIATE_TEST_SUITE_P(Devices, CassorindStream, ::testing::Values("pty", "tcp"),
                         [](const auto& each) { return std::string(each.param); });

TEST(CassorindChannelState, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(CreateChannel(nullptr, 0), 0);
  CassorindChannel* none = nullptr;
  EXPECT_EQ(CreateChannel(&none, 1), 0);
  ReleaseChannel(nullptr);

  const ChannelPointer channel = NewChannel();
  EXPECT_EQ(channel->Open(nullptr), 0);
  for (const char* device : {"/dev/pts/no-such-device", "/dev/null", "/etc/passwd", "socket://",
                             "socket://127.0.0.1", "socket://:80", "socket://127.0.0.1:1"}) {
    const PortDevice named(kPort, device);
    EXPECT_FALSE(OpenAt(*channel, kPort, 115200)) << device;
  }
  EXPECT_FALSE(OpenAt(*channel, 0, 115200));
  EXPECT_FALSE(OpenAt(*channel, 250, 115200));

  char buffer[1];
  EXPECT_EQ(channel->Read(buffer, 1, kPatience, 0), -1);
  EXPECT_EQ(channel->Write("x", 1, 0), 0);
  EXPECT_EQ(channel->Clear(), 0);
  EXPECT_EQ(channel->Close(), 0);
}

TEST(CassorindChannelState, ADeviceThatVanishedCannotBeOpenedAgain) {
  std::string name;
  {
    const PtyPeer pty;
    name = pty.DeviceName();
  }
  const PortDevice device(kPort, name);
  EXPECT_FALSE(OpenAt(*NewChannel(), kPort, 115200));
}

TEST(CassorindChannelState, HasOneUserAtATime) {
  const PtyPeer pty;
  const PortDevice device(kPort, pty.DeviceName());
  const ChannelPointer first = NewChannel();
  const ChannelPointer second = NewChannel();
  ASSERT_TRUE(OpenAt(*first, kPort, 115200));
  EXPECT_FALSE(OpenAt(*first, kPort, 115200));
  EXPECT_FALSE(OpenAt(*second, kPort, 115200));
  EXPECT_NE(first->Close(), 0);
  EXPECT_EQ(first->Close(), 0);
  EXPECT_TRUE(OpenAt(*second, kPort, 115200));
}

TEST(CassorindSerial, IsRawWithEightBitsAtTheGivenRate) {
  const PtyPeer pty;
  const PortDevice device(kPort, pty.DeviceName());
  const ChannelPointer channel = NewChannel();
  for (const std::uint32_t rate : {1200u, 9600u, 115200u, 128000u, 921600u, 4000000u}) {
    ASSERT_TRUE(OpenAt(*channel, kPort, rate)) << rate;
    const termios2 settings = pty.Settings();
    EXPECT_EQ(settings.c_ospeed, rate);
    EXPECT_EQ(settings.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_iflag, 0u);
    EXPECT_EQ(settings.c_oflag, 0u);
    EXPECT_EQ(settings.c_lflag, 0u);
    channel->Close();
  }
  EXPECT_FALSE(OpenAt(*channel, kPort, 0));
  EXPECT_FALSE(OpenAt(*channel, kPort, 4000001));
}

TEST(CassorindSerial, DropsWhatCameBeforeTheOpen) {
  PtyPeer pty;
  const PortDevice device(kPort, pty.DeviceName());
  const ChannelPointer channel = NewChannel();
  ASSERT_TRUE(OpenAt(*channel, kPort, 115200));
  pty.Send("stale\n");
  channel->Close();
  ASSERT_TRUE(OpenAt(*channel, kPort, 115200));
  pty.Send("new");
  EXPECT_EQ(ReadAll(*channel, 3), "new");
}

}  // namespace
}  // namespace peers
