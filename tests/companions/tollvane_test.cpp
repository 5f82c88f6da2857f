#include "tollvane/tollvane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include "companions/chunks.h"
#include "companions/tcp_peer.h"
#include "platform/thread.h"

namespace peers {
namespace {

constexpr std::uint32_t kServerMessage = 2025;

struct Release {
  void operator()(TollvaneServer* client) const { client->Release(); }
};

class Tollvane : public ::testing::Test {
 protected:
  void SetUp() override { EmptyQueue(); }

  bool ConnectTo(std::uint32_t port) {
    const TollvaneConnectParameters parameters{port, {0, 0}};
    return client->Connect(&parameters) == 0;
  }
  void ConnectToServer() {
    ASSERT_TRUE(ConnectTo(server.Port()));
    server.Accept();
  }
  bool Register(std::uint32_t thread, bool enabled = true) {
    return client->RegisterReceiver(kServerMessage, enabled, thread) != 0;
  }
  std::int32_t Forward(const std::string& text) {
    return client->Forward(text.data(), static_cast<std::uint32_t>(text.size()));
  }
  static std::string TakeChunks(std::size_t bytes) {
    return peers::TakeChunks(kServerMessage, bytes);
  }

  const std::uint32_t self = merovane::platform::CurrentThreadId();
  TcpPeer server;
  const std::unique_ptr<TollvaneServer, Release> client{InitDll()};
};

TEST_F(Tollvane, CarriesDataBothWays) {
  ConnectToServer();
  EXPECT_TRUE(Register(self));
  EXPECT_EQ(Forward("from the handset"), 16);
  EXPECT_EQ(server.Receive(16), "from the handset");
  server.Send("to the handset");
  EXPECT_EQ(TakeChunks(14), "to the handset");
}

TEST_F(Tollvane, ConnectsOnlyToAListeningServer) {
  EXPECT_NE(client->Connect(nullptr), 0);
  for (const std::uint32_t port : {0, 65536 + 80, 1}) EXPECT_FALSE(ConnectTo(port)) << port;
  EXPECT_EQ(Forward("x"), 0);
  EXPECT_EQ(client->Disconnect(), 0);
}

TEST_F(Tollvane, CanBeConnectedAgainElsewhere) {
  TcpPeer second;
  ConnectToServer();
  ASSERT_TRUE(ConnectTo(second.Port()));
  second.Accept();
  EXPECT_EQ(server.Receive(1), "") << "disconnected";
  EXPECT_EQ(Forward("second"), 6);
  EXPECT_EQ(second.Receive(6), "second");
  EXPECT_NE(client->Disconnect(), 0);
  EXPECT_EQ(client->Disconnect(), 0);
}

TEST_F(Tollvane, DisconnectingSendsTheBacklogFirst) {
  ConnectToServer();
  auto received = std::async(std::launch::async, [&] { return server.Receive(1'000'000); });
  const std::string chunk(9000, 'c');
  for (int i = 0; i < 100; ++i) ASSERT_EQ(Forward(chunk), 9000);
  EXPECT_NE(client->Disconnect(), 0);
  EXPECT_EQ(Forward("late"), 0);
  EXPECT_EQ(received.get().size(), 900'000u);
}

TEST_F(Tollvane, EveryRegisteredThreadGetsEveryChunk) {
  ConnectToServer();
  std::promise<std::uint32_t> otherId;
  auto other = std::async(std::launch::async, [&] {
    merovane::platform::CreateMessageQueue();
    otherId.set_value(merovane::platform::CurrentThreadId());
    return TakeChunks(5);
  });
  EXPECT_TRUE(Register(self));
  EXPECT_TRUE(Register(self));
  EXPECT_TRUE(Register(otherId.get_future().get()));
  server.Send("first");
  EXPECT_EQ(TakeChunks(5), "first");
  EXPECT_EQ(other.get(), "first");

  // Threads that have ended without a word are dropped. One whose queue is full is given a second.
  auto fastest = std::chrono::steady_clock::duration::max();
  for (const char* text : {"later", "again", "still"}) {
    merovane::platform::Thread brief;
    ASSERT_TRUE(brief.Start([] {}));
    EXPECT_TRUE(Register(brief.Id()));
    ASSERT_TRUE(brief.WaitMs(kPatienceMs));
    const auto sent = std::chrono::steady_clock::now();
    server.Send(text);
    EXPECT_EQ(TakeChunks(5), text);
    server.Send("x");
    EXPECT_EQ(TakeChunks(1), "x");
    fastest = std::min(fastest, std::chrono::steady_clock::now() - sent);
  }
  EXPECT_LT(fastest, std::chrono::milliseconds(900));
  EXPECT_TRUE(Register(self, false));
  server.Send("unheard");
  server.AwaitDelivery();
  client->Disconnect();
  Message message;
  EXPECT_FALSE(TakeMessage(message, 0));
}

TEST_F(Tollvane, AFullQueueDelaysAndLosesNothing) {
  const int filled = FillQueue();
  ConnectToServer();
  EXPECT_TRUE(Register(self));
  server.Send("delayed");
  Message message;
  for (int i = 0; i < filled; ++i) ASSERT_TRUE(TakeMessage(message, 0));
  EXPECT_EQ(TakeChunks(7), "delayed");
}

TEST_F(Tollvane, ASlowServerNeverHoldsUpAForward) {
  ConnectToServer();
  const std::string chunk(std::size_t{64} * 1024, 's');
  bool refused = false;
  for (int i = 0; i < 4096 && !refused; ++i) {
    const std::int32_t taken = Forward(chunk);
    refused = taken == 0;
    EXPECT_TRUE(refused || taken == 64 * 1024);
  }
  EXPECT_TRUE(refused);
  EXPECT_EQ(Forward(std::string(1024 * 1024 + 1, 's')), 0);
  EXPECT_NE(client->Disconnect(), 0);
}

TEST_F(Tollvane, AServerThatGoesAwayTakesNothingMore) {
  ConnectToServer();
  server.Vanish();
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(kPatienceMs);
  while (Forward("x") != 0) {
    ASSERT_LT(std::chrono::steady_clock::now(), deadline);
    std::this_thread::yield();
  }
}

TEST_F(Tollvane, ChunksOutliveTheDisconnect) {
  ConnectToServer();
  EXPECT_TRUE(Register(self));
  server.Send("kept");
  Message message;
  ASSERT_TRUE(TakeMessage(message, kPatienceMs));
  EXPECT_NE(client->Disconnect(), 0);
  EXPECT_EQ(ChunkOf(message), "kept");
}

}  // namespace
}  // namespace peers
