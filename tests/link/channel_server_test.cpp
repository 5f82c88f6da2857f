#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

#include "platform/message_queue.h"
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
    served = std::make_unique<LinkEnvironment>(directory.Path());
    ASSERT_TRUE(served->server.IsConnected());
    server.Accept();
    served->settings.allLog = true;
    link = std::make_unique<PhoneLink>(*served, platform::SystemClock(), handset.Library());
    ASSERT_EQ(link->Open(port, 9600), Result::Success);
    static_cast<void>(allLog.Take());
  }
  void TearDown() override { link.reset(); }
  Result Receive() { return link->ReceiveFrame(kPatienceMs).Why(); }
  static std::string Text(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

  TcpServer server;
  std::unique_ptr<LinkEnvironment> served;
  std::unique_ptr<PhoneLink> link;
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
  served->server.Use(false);
  EXPECT_EQ(server.Receive(1), "") << "the connection has ended";
  EXPECT_FALSE(served->ReceivesThroughThread());
  // The port goes on as it was opened.
  handset.Say(1, 1);
  EXPECT_EQ(Receive(), Result::Success);
  server.Vanish();
  served->server.Use(true);
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
    EXPECT_TRUE(link->SendAndWaitSame({1, 1}, {}, kPatienceMs));
  }
}

// A server library that gives out one and the same object, and writes down what is asked of it.
class OneServer final : private TollvaneServer {
 public:
  static TollvaneServer* Make(platform::Module&) { return current_; }

  OneServer() { current_ = this; }
  ~OneServer() { current_ = nullptr; }
  OneServer(const OneServer&) = delete;
  OneServer& operator=(const OneServer&) = delete;

  void Post(const Bytes& data) const {
    EXPECT_TRUE(platform::PostMessageToThread(thread_, message_,
                                              reinterpret_cast<std::uintptr_t>(data.data()),
                                              static_cast<std::intptr_t>(data.size())));
  }
  bool refuses = false;
  std::vector<std::string> TakeCalls() {
    const std::lock_guard lock(mutex_);
    return std::exchange(calls_, {});
  }
  bool WaitForCall(const std::string& call) {
    std::unique_lock lock(mutex_);
    return called_.wait_for(lock, std::chrono::milliseconds(kPatienceMs),
                            [&] { return std::ranges::count(calls_, call) > 0; });
  }

 private:
  std::int32_t Note(std::string call) {
    const std::lock_guard lock(mutex_);
    calls_.push_back(std::move(call));
    called_.notify_all();
    return 1;
  }
  void Release() override { Note("release"); }
  std::int32_t RegisterReceiver(std::uint32_t message, std::int32_t enabled,
                                std::uint32_t thread) override {
    message_ = message;
    thread_ = thread;
    return Note("receiver " + std::to_string(message) + " " + std::to_string(enabled));
  }
  std::int32_t Connect(const TollvaneConnectParameters* parameters) override {
    Note("connect " + std::to_string(parameters->port));
    return refuses ? -1 : 0;
  }
  std::int32_t Disconnect() override { return Note("disconnect"); }
  std::int32_t Forward(const void*, std::uint32_t length) override {
    return Note("forward " + std::to_string(length));
  }

  static inline OneServer* current_ = nullptr;
  std::uint32_t message_ = 0;
  std::uint32_t thread_ = 0;
  std::mutex mutex_;
  std::condition_variable called_;
  std::vector<std::string> calls_;
};

struct OneServerTest : CommandFixture {
  void SetUp() override {}
  void Open() { ASSERT_EQ(link.Open(port, 9600), Result::Success); }
  std::vector<std::string> Calls() { return server.TakeCalls(); }

  OneServer server;
  LinkEnvironment shared{directory.Path(), OneServer::Make};
  PhoneLink link{shared, platform::SystemClock(), ScriptedHandset::Library()};
};

using ::testing::ElementsAre;

TEST_F(OneServerTest, IsReachedOnlyWhileItsConnectionStands) {
  EXPECT_THAT(Calls(), ElementsAre());
  shared.server.Use(true);
  shared.server.Use(true);
  Open();
  EXPECT_THAT(Calls(), ElementsAre("connect 36667", "receiver 2025 1"));
  handset.Say(1, 1);
  EXPECT_TRUE(link.ReceiveFrame(kPatienceMs));
  // The server hears of it after the waiting command.
  EXPECT_TRUE(server.WaitForCall("forward 10"));
  shared.server.Use(false);
  EXPECT_THAT(Calls(), ElementsAre("forward 10", "disconnect", "release"));

  // On again, with the same object: it is no business of a port that was opened before.
  shared.server.Use(true);
  const Bytes late = Hex("01 02 03");
  server.Post(late);  // would be a write that no script expects
  handset.Say(1, 1);
  EXPECT_TRUE(link.ReceiveFrame(kPatienceMs));
  EXPECT_EQ(link.Close(), Result::Success);
  EXPECT_THAT(Calls(), ElementsAre("connect 36667"));
  Open();
  EXPECT_EQ(link.Close(), Result::Success);
  EXPECT_THAT(Calls(), ElementsAre("receiver 2025 1")) << "the port's end takes nothing away";
  shared.server.Use(false);
  shared.server.Use(false);
  EXPECT_THAT(Calls(), ElementsAre("disconnect", "release"));
}

TEST_F(OneServerTest, IsReleasedAtOnceWhenItDoesNotConnectAndAtTheEnd) {
  server.refuses = true;
  shared.server.Use(true);
  EXPECT_FALSE(shared.server.IsConnected());
  EXPECT_THAT(Calls(), ElementsAre("connect 36667", "release"));
  server.refuses = false;
  directory.Write("Merovane.ini", "[Socket]\r\nConnect ChannelServer=1\r\nPort=12\r\n");
  {
    const LinkEnvironment connected(directory.Path(), OneServer::Make);
    EXPECT_TRUE(connected.ReceivesThroughThread());
  }
  EXPECT_THAT(Calls(), ElementsAre("connect 12", "release"));
}

}  // namespace
}  // namespace merovane::test
