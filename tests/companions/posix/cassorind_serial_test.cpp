// What only a terminal has: settings, one user at a time, input from before the open.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>

#include "companions/cassorind_channel.h"
#include "companions/posix/pty_peer.h"
#include "platform/message_queue.h"

namespace peers {
namespace {

std::size_t OpenDescriptors() {
  return static_cast<std::size_t>(std::distance(
      std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator()));
}

struct CassorindSerial : ::testing::Test {
  bool Open(std::uint32_t rate = 115200) { return OpenAt(*channel, kPort, rate); }

  PtyPeer pty;
  const PortDevice device{kPort, pty.DeviceName()};
  const ChannelPointer channel = NewChannel();
};

TEST_F(CassorindSerial, OpensAndClosesLeaveNoDescriptors) {
  ASSERT_NE(channel->SetReceiver(1124, 1, merovane::platform::CurrentThreadId()), 0);
  const std::size_t before = OpenDescriptors();
  for (int i = 0; i < 50; ++i) {
    ASSERT_TRUE(Open());
    EXPECT_GT(OpenDescriptors(), before);
    EXPECT_NE(channel->Close(), 0);
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST_F(CassorindSerial, IsOnlyATerminalThatIsThere) {
  const std::string vanished = PtyPeer().DeviceName();
  for (const std::string& name : {vanished, std::string("/dev/null"), std::string("/tmp")}) {
    const PortDevice named(kPort, name);
    EXPECT_FALSE(Open()) << name;
  }
}

TEST_F(CassorindSerial, HasOneUserAtATime) {
  const ChannelPointer second = NewChannel();
  ASSERT_TRUE(Open());
  EXPECT_FALSE(Open());
  EXPECT_FALSE(OpenAt(*second, kPort, 115200));
  EXPECT_NE(channel->Close(), 0);
  EXPECT_EQ(channel->Close(), 0);
  EXPECT_TRUE(OpenAt(*second, kPort, 115200));
}

TEST_F(CassorindSerial, IsRawWithEightBitsAtTheGivenRate) {
  for (const std::uint32_t rate : {1200u, 9600u, 115200u, 128000u, 921600u, 4000000u}) {
    ASSERT_TRUE(Open(rate)) << rate;
    const termios2 settings = pty.Settings();
    EXPECT_EQ(settings.c_ospeed, rate);
    EXPECT_EQ(settings.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_iflag, 0u);
    EXPECT_EQ(settings.c_oflag, 0u);
    EXPECT_EQ(settings.c_lflag, 0u);
    channel->Close();
  }
  EXPECT_FALSE(Open(0));
  EXPECT_FALSE(Open(4000001));
}

TEST_F(CassorindSerial, DropsWhatCameBeforeTheOpen) {
  ASSERT_TRUE(Open());
  pty.Send("stale\n");
  channel->Close();
  ASSERT_TRUE(Open());
  pty.Send("new");
  EXPECT_EQ(ReadAll(*channel, 3), "new");
}

}  // namespace
}  // namespace peers
