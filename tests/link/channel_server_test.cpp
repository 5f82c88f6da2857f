#include "support/command_fixture.h"
#include "support/tcp_server.h"

namespace merovane::test {
namespace {

constexpr std::uint32_t kPatienceMs = 20000;

// A phone whose settings file names a channel server on this machine.
struct ChannelServerTest : CommandFixture {
  void SetUp() override {
    directory.Write("Merovane.ini", "[Socket]\r\nConnect ChannelServer=1\r\nPort=" +
                                        std::to_string(server.Port()) + "\r\n");
    served = std::make_unique<LinkSettings>(directory.Path());
    ASSERT_NE(served->Server(), nullptr);
    server.Accept();
    served->allLog = true;
    link = std::make_unique<PhoneLink>(*served, platform::SystemClock(), handset.Library());
    ASSERT_EQ(link->Open(port, 9600), Result::Success);
    static_cast<void>(allLog.Take());
  }
  void TearDown() override { link.reset(); }
  Result Receive() { return link->ReceiveFrame(frame, length, kPatienceMs); }
  static std::string Text(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

  TcpServer server;
  std::unique_ptr<LinkSettings> served;
  std::unique_ptr<PhoneLink> link;
  std::array<std::uint8_t, 9216> frame{};
  std::uint32_t length = 0;
};

TEST_F(ChannelServerTest, SeesWhatTheHandsetSays) {
  const Bytes said = WireFrame(true, 2, 9, Hex("7E 01"));
  handset.SayRaw(said);
  EXPECT_EQ(Receive(), Result::Success);
  EXPECT_EQ(server.Receive(said.size()), Text(said));
}

TEST_F(ChannelServerTest, SpeaksToTheHandset) {
  handset.ExpectRaw("01 02 7E").Answer(3, 3);
  server.Send("\x01\x02\x7E");
  EXPECT_EQ(Receive(), Result::Success);
  EXPECT_EQ(link->Close(), Result::Success);
  EXPECT_THAT(allLog.Take(), ::testing::UnorderedElementsAre(
                                 "--> 01 02 7E", "<-- 7E 00 00 00 00 00 08 03 03 7E", "Close"));
}

TEST_F(ChannelServerTest, LetsAnAssertBeSeenOnce) {
  EXPECT_FALSE(link->IsAssert());
  handset.Say(0xFF, 0, "41");
  EXPECT_EQ(Receive(), Result::Success);
  // The watch comes after the ring.
  const platform::Deadline deadline(platform::SystemClock(), 20000);
  bool asserted = false;
  while (!asserted && !deadline.Passed()) asserted = link->IsAssert();
  EXPECT_TRUE(asserted);
  EXPECT_FALSE(link->IsAssert());
}

TEST_F(ChannelServerTest, IsLeftAndFoundAgainWhileRunning) {
  served->UseChannelServer(false);
  EXPECT_EQ(server.Receive(1), "") << "the connection has ended";
  EXPECT_EQ(served->Server(), nullptr);
  EXPECT_FALSE(served->ReceivesThroughThread());
  // The port goes on as it was opened.
  handset.Say(1, 1);
  EXPECT_EQ(Receive(), Result::Success);
  server.Vanish();
  served->UseChannelServer(true);
  server.Accept();
  ASSERT_EQ(link->Close(), Result::Success);
  ASSERT_EQ(link->Open(port, 9600), Result::Success);
  handset.Say(1, 1);
  EXPECT_EQ(server.Receive(10), Text(WireFrame(true, 1, 1, {})));
}

TEST_F(ChannelServerTest, MayVanish) {
  server.Vanish();
  for (int i = 0; i < 3; ++i) {
    handset.Expect(1, 1).Answer(1, 1);
    EXPECT_EQ(link->SendAndWaitSame({1, 1}, {}, kPatienceMs), Result::Success);
  }
}

}  // namespace
}  // namespace merovane::test
