#include "link/threaded_channel.h"

#include <array>
#include <atomic>
#include <utility>

#include "link/byte_ring.h"
#include "platform/message_queue.h"

namespace merovane {
namespace {

constexpr std::uint32_t kThreadStopLimitMs = 1000;
// How long a drop waits for a thread that has much before it.
constexpr std::uint32_t kFullQueueLimitMs = 1000;
// To the thread, from DropReceived: what was posted before this is stale (WM_APP).
constexpr std::uint32_t kStaleEndsMessage = 0x8000;

}  // namespace

struct ThreadedChannel::Reception {
  const std::shared_ptr<TappedChannel> line;
  const std::shared_ptr<ServerConnection> server;
  ByteRing ring;
  std::atomic<bool> stopped{false};
  // While the thread has drops before it, chunks stay out of the ring.
  platform::Mutex mutex;
  std::uint32_t dropsPending MEROVANE_GUARDED_BY(mutex) = 0;

  Reception(std::shared_ptr<TappedChannel> l, std::shared_ptr<ServerConnection> s)
      : line(std::move(l)), server(std::move(s)) {}

  void Run() {
    platform::Message message;
    while (!stopped && platform::TakeMessage(message, UINT32_MAX)) {
      if (message.id == platform::kQuitMessage) return;
      // NOLINTNEXTLINE(performance-no-int-to-ptr): a message carries an address as a number
      const auto* data = reinterpret_cast<const std::uint8_t*>(message.first);
      const std::span<const std::uint8_t> chunk(
          data, data && message.second > 0 ? static_cast<std::size_t>(message.second) : 0);
      if (message.id == kChannelDataMessage) {
        if (!chunk.empty()) TakeChunk(chunk);
      } else if (message.id == kStaleEndsMessage && message.first == Ticket()) {
        const platform::MutexLock lock(mutex);
        --dropsPending;
      } else if (message.id == kServerDataMessage && server) {
        if (!chunk.empty()) PassServerData(chunk);
      } else {
        platform::DispatchForeignMessage(message);
      }
    }
  }

  void TakeChunk(std::span<const std::uint8_t> chunk) {
    {
      // First, so that a slow disk delays no answer.
      const platform::MutexLock lock(mutex);
      if (dropsPending == 0) ring.Append(chunk);
    }
    line->Received(chunk);
  }

  // On to the handset as it stands, at most one ring of it.
  void PassServerData(std::span<const std::uint8_t> posted) {
    std::array<std::uint8_t, kRingCapacity> data;
    const std::size_t bytes = server->Take(posted, data);
    if (bytes > 0) static_cast<void>(line->Write(std::span(data).first(bytes)));
  }

  // False when the thread's queue is full.
  bool TryDrop(std::uint32_t threadId) {
    const platform::MutexLock lock(mutex);
    ring.Clear();
    if (!platform::PostMessageToThread(threadId, kStaleEndsMessage, Ticket(), 0)) return false;
    ++dropsPending;
    return true;
  }

  // Tells our messages from others of the same id.
  std::uintptr_t Ticket() const { return reinterpret_cast<std::uintptr_t>(this); }
};

ThreadedChannel::ThreadedChannel(std::shared_ptr<Reception> reception)
    : reception_(std::move(reception)) {}

std::unique_ptr<ThreadedChannel> ThreadedChannel::Start(std::shared_ptr<TappedChannel> line,
                                                        SerialChannel& device,
                                                        std::shared_ptr<ServerConnection> server) {
  const auto reception = std::make_shared<Reception>(std::move(line), std::move(server));
  std::unique_ptr<ThreadedChannel> channel(new ThreadedChannel(reception));
  if (!channel->thread_.Start([reception] { reception->Run(); })) return nullptr;
  if (reception->server) reception->server->RegisterReceiver(channel->thread_.Id());
  device.PostTo(channel->thread_.Id());
  return channel;
}

ThreadedChannel::~ThreadedChannel() { Stop(); }

void ThreadedChannel::Stop() {
  const std::uint32_t id = thread_.Id();
  if (id == 0) return;
  // What was posted before is still recorded and logged.
  if (!platform::PostMessageToThread(id, platform::kQuitMessage, 0, 0)) reception_->stopped = true;
  if (thread_.WaitMs(kThreadStopLimitMs)) return;
  reception_->stopped = true;
  thread_.Abandon();
}

Result ThreadedChannel::Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs,
                             std::size_t& got) {
  got = reception_->ring.WaitNotEmpty(timeLimitMs) ? reception_->ring.Consume(into) : 0;
  return got > 0 ? Result::Success : Result::NoData;
}

Result ThreadedChannel::Write(std::span<const std::uint8_t> data) {
  return reception_->line->Write(data);
}

void ThreadedChannel::DropReceived() {
  const platform::Deadline deadline(platform::SystemClock(), kFullQueueLimitMs);
  while (!reception_->TryDrop(thread_.Id()) && !deadline.Passed()) {
    platform::SystemClock().SleepMs(1);
  }
}

void ThreadedChannel::Close() {
  Stop();
  reception_->line->Close();
}

}  // namespace merovane
