#include "tollvane/tollvane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "channel_server.h"
#include "companions/chunks.h"
#include "companions/tcp_peer.h"

namespace {

using peers::Message;
using peers::TakeMessage;

constexpr std::uint32_t kServerMessage = 2025;
constexpr std::chrono::milliseconds kPatience{peers::kPatienceMs};

// A channel server on a thread of its own, which keeps what it receives.
class RunningServer {
 public:
  RunningServer()
      : server_(context_, 0,
                {.connected = [this](int) { Change([this] { ++clients_; }); },
                 .disconnected = [this](int) { Change([this] { --clients_; }); },
                 .received =
                     [this](int, std::span<const std::byte> data) {
                       Change([&] {
                         received_.append(reinterpret_cast<const char*>(data.data()), data.size());
                       });
                     }}),
        thread_([this] { context_.run(); }) {}
  ~RunningServer() { Stop(); }

  void Stop() {
    server_.Close();
    if (thread_.joinable()) thread_.join();
  }
  std::uint32_t Port() const { return server_.Port(); }
  void Inject(const std::string& data) {
    const auto* const bytes = reinterpret_cast<const std::byte*>(data.data());
    server_.Inject({bytes, bytes + data.size()});
  }
  bool AwaitClients(int count) {
    return Await([&] { return clients_ == count; });
  }
  std::string AwaitData(std::size_t bytes) {
    Await([&] { return received_.size() >= bytes; });
    std::lock_guard lock(mutex_);
    return received_;
  }

 private:
  template <typename Change_>
  void Change(Change_ change) {
    {
      std::lock_guard lock(mutex_);
      change();
    }
    changed_.notify_all();
  }
  template <typename Condition>
  bool Await(Condition condition) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, kPatience, condition);
  }

  asio::io_context context_;
  std::mutex mutex_;
  std::condition_variable changed_;
  int clients_ = 0;
  std::string received_;
  channel_server::ChannelServer server_;
  std::thread thread_;
};

struct Release {
  void operator()(TollvaneServer* client) const { client->Release(); }
};
using Client = std::unique_ptr<TollvaneServer, Release>;

bool ConnectTo(TollvaneServer& client, std::uint32_t port) {
  const TollvaneConnectParameters parameters{port, {0, 0}};
  return client.Connect(&parameters) == 0;
}

std::int32_t ForwardText(TollvaneServer& client, const std::string& text) {
  return client.Forward(text.data(), static_cast<std::uint32_t>(text.size()));
}

std::string TakeChunks(std::size_t bytes) { return peers::TakeChunks(kServerMessage, bytes); }

class Tollvane : public ::testing::Test {
 protected:
  void SetUp() override { peers::EmptyQueue(); }
  // With the server knowing of it too, so that it has whom to inject to.
  void ConnectToServer() {
    ASSERT_TRUE(ConnectTo(*client, server.Port()));
    ASSERT_TRUE(server.AwaitClients(1));
  }

  const std::uint32_t self = merovane::platform::CurrentThreadId();
  RunningServer server;
  Client client{InitDll()};
};

TEST_F(Tollvane, CarriesDataBothWaysForEveryClient) {
  const Client second(InitDll());
  for (TollvaneServer* const each : {client.get(), second.get()}) {
    ASSERT_TRUE(ConnectTo(*each, server.Port()));
    EXPECT_NE(each->RegisterReceiver(kServerMessage, 1, self), 0);
  }
  EXPECT_TRUE(server.AwaitClients(2));
  EXPECT_EQ(ForwardText(*client, "from the handset"), 16);
  EXPECT_EQ(server.AwaitData(16), "from the handset");
  server.Inject("ab");
  std::string got = TakeChunks(4);
  std::sort(got.begin(), got.end());
  EXPECT_EQ(got, "aabb");
}

TEST_F(Tollvane, ConnectsOnlyToAListeningServer) {
  EXPECT_NE(client->Connect(nullptr), 0);
  EXPECT_FALSE(ConnectTo(*client, 0));
  EXPECT_FALSE(ConnectTo(*client, 65536 + 80));
  EXPECT_FALSE(ConnectTo(*client, 1));
  EXPECT_EQ(ForwardText(*client, "x"), 0);
  EXPECT_EQ(client->Disconnect(), 0);
}

TEST_F(Tollvane, CanBeConnectedAgainElsewhere) {
  RunningServer second;
  ConnectToServer();
  ASSERT_TRUE(ConnectTo(*client, second.Port()));
  EXPECT_TRUE(server.AwaitClients(0));
  EXPECT_EQ(ForwardText(*client, "second"), 6);
  EXPECT_EQ(second.AwaitData(6), "second");
  EXPECT_NE(client->Disconnect(), 0);
  EXPECT_EQ(client->Disconnect(), 0);
}

TEST_F(Tollvane, DisconnectingSendsTheBacklogFirst) {
  ConnectToServer();
  const std::string chunk(9000, 'c');
  for (int i = 0; i < 100; ++i) ASSERT_EQ(ForwardText(*client, chunk), 9000);
  EXPECT_NE(client->Disconnect(), 0);
  EXPECT_EQ(ForwardText(*client, "late"), 0);
  EXPECT_EQ(server.AwaitData(900'000).size(), 900'000u);
}

TEST_F(Tollvane, EveryRegisteredThreadGetsEveryChunk) {
  ConnectToServer();
  std::promise<std::uint32_t> otherId;
  std::string otherGot;
  std::thread other([&] {
    merovane::platform::CreateMessageQueue();
    otherId.set_value(merovane::platform::CurrentThreadId());
    otherGot = TakeChunks(5);
  });
  const std::uint32_t otherThread = otherId.get_future().get();
  EXPECT_NE(client->RegisterReceiver(kServerMessage, 1, self), 0);
  EXPECT_NE(client->RegisterReceiver(kServerMessage, 1, self), 0);
  EXPECT_NE(client->RegisterReceiver(kServerMessage, 1, otherThread), 0);
  server.Inject("first");
  EXPECT_EQ(TakeChunks(5), "first");
  other.join();
  EXPECT_EQ(otherGot, "first");

  // The other thread has ended without a word: it may not hold up this one for good.
  server.Inject("second");
  EXPECT_EQ(TakeChunks(6), "second");
  server.Inject("third");
  EXPECT_EQ(TakeChunks(5), "third");

  EXPECT_NE(client->RegisterReceiver(kServerMessage, 0, self), 0);
  server.Inject("unheard");
  ForwardText(*client, "x");
  client->Disconnect();
  Message message;
  EXPECT_FALSE(TakeMessage(message, 0));
}

TEST_F(Tollvane, AFullQueueDelaysAndLosesNothing) {
  const int filled = peers::FillQueue();
  ConnectToServer();
  EXPECT_NE(client->RegisterReceiver(kServerMessage, 1, self), 0);
  server.Inject("delayed");
  Message message;
  for (int i = 0; i < filled; ++i) ASSERT_TRUE(TakeMessage(message, 0));
  EXPECT_EQ(TakeChunks(7), "delayed");
}

TEST_F(Tollvane, ASlowServerNeverHoldsUpAForward) {
  peers::TcpPeer slow;
  ASSERT_TRUE(ConnectTo(*client, slow.Port()));
  slow.Accept();
  const std::string chunk(64 * 1024, 's');
  bool refused = false;
  for (int i = 0; i < 4096 && !refused; ++i) {
    const std::int32_t taken = ForwardText(*client, chunk);
    refused = taken == 0;
    EXPECT_TRUE(refused || taken == 64 * 1024);
  }
  EXPECT_TRUE(refused);
  EXPECT_EQ(ForwardText(*client, std::string(1024 * 1024 + 1, 's')), 0);
  EXPECT_NE(client->Disconnect(), 0);
}

TEST_F(Tollvane, AServerThatGoesAwayTakesNothingMore) {
  ConnectToServer();
  server.Stop();
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (ForwardText(*client, "x") != 0) {
    ASSERT_LT(std::chrono::steady_clock::now(), deadline);
    std::this_thread::yield();
  }
}

TEST_F(Tollvane, ChunksOutliveTheDisconnect) {
  ConnectToServer();
  EXPECT_NE(client->RegisterReceiver(kServerMessage, 1, self), 0);
  server.Inject("kept");
  Message message;
  ASSERT_TRUE(TakeMessage(message, peers::kPatienceMs));
  EXPECT_NE(client->Disconnect(), 0);
  EXPECT_EQ(std::string_view(reinterpret_cast<const char*>(message.first), 4), "kept");
}

}  // namespace
