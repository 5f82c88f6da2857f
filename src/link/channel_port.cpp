#include "link/channel_port.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>

#include "link/assert_watch.h"
#include "platform/message_queue.h"

namespace merovane {
namespace {

constexpr std::uint32_t kThreadStopLimitMs = 1000;
// How long a send waits for a receive thread that is far behind.
constexpr std::uint32_t kFullQueueLimitMs = 1000;
// To the receive thread, from ClearThreadRing: what was posted before this is stale (WM_APP).
constexpr std::uint32_t kStaleEndsMessage = 0x8000;
// How often a read that can be cancelled looks whether it is.
constexpr std::uint32_t kCancelPollMs = 10;

void Record(platform::AppendFile& recording, std::span<const std::uint8_t> data) {
  // A full disk costs the recording, never a command.
  static_cast<void>(recording.Write({reinterpret_cast<const char*>(data.data()), data.size()}));
}

}  // namespace

struct ChannelPort::Reception {
  LinkSettings& settings;
  std::shared_ptr<CassorindChannel> channel;
  std::shared_ptr<ChannelServer> server;
  ByteRing ring;
  // While the thread has clears before it, chunks stay out of the ring.
  std::mutex clearMutex;
  std::uint32_t clearsPending = 0;
  std::shared_ptr<std::atomic<bool>> asserted;
  std::atomic<bool> stopped{false};
  std::mutex sinksMutex;
  std::shared_ptr<PortLog> allLog;
  std::shared_ptr<platform::AppendFile> recording;

  Reception(LinkSettings& s, std::shared_ptr<CassorindChannel> c, std::shared_ptr<ChannelServer> v,
            std::shared_ptr<std::atomic<bool>> a)
      : settings(s), channel(std::move(c)), server(std::move(v)), asserted(std::move(a)) {}

  void Run() {
    platform::Message message;
    while (!stopped && platform::TakeMessage(message, UINT32_MAX)) {
      if (message.id == platform::kQuitMessage) return;
      const auto length = static_cast<std::size_t>(message.second);
      // NOLINTNEXTLINE(performance-no-int-to-ptr): a message carries an address as a number
      const auto* data = reinterpret_cast<const std::uint8_t*>(message.first);
      if (message.id == kChannelDataMessage) {
        if (data && message.second > 0) TakeChunk({data, length});
      } else if (message.id == kStaleEndsMessage && message.first == Ticket()) {
        const std::lock_guard lock(clearMutex);
        --clearsPending;
      } else if (message.id == kServerDataMessage && server) {
        if (data && message.second > 0) PumpServerData({data, length});
      } else {
        platform::DispatchForeignMessage(message);
      }
    }
  }

  void TakeChunk(std::span<const std::uint8_t> chunk) {
    {
      // First, so that a slow disk delays no answer.
      const std::lock_guard lock(clearMutex);
      if (clearsPending == 0) ring.Append(chunk);
    }
    {
      const std::lock_guard lock(sinksMutex);
      if (recording && settings.SavesReceivedData()) Record(*recording, chunk);
      if (allLog && settings.allLog) allLog->Data(chunk, false);
    }
    if (server && settings.ServerConnected()) {
      server->Forward(chunk);
      if (HoldsAssertReport(chunk)) *asserted = true;
    }
  }

  // Drops what was posted to the thread up to now, whether it has come to it or not.
  void Clear(std::uint32_t threadId) {
    const platform::Deadline deadline(platform::SystemClock(), kFullQueueLimitMs);
    while (!TryClear(threadId) && !deadline.Passed()) platform::SystemClock().SleepMs(1);
  }

  // False when the thread's queue is full.
  bool TryClear(std::uint32_t threadId) {
    const std::lock_guard lock(clearMutex);
    ring.Clear();
    if (!platform::PostMessageToThread(threadId, kStaleEndsMessage, Ticket(), 0)) return false;
    ++clearsPending;
    return true;
  }

  // Tells our messages from others of the same id.
  std::uintptr_t Ticket() const { return reinterpret_cast<std::uintptr_t>(this); }

  // Passes data of the channel server on to the handset, at most one ring of it, as it stands.
  void PumpServerData(std::span<const std::uint8_t> data) {
    data = data.first(std::min(data.size(), kRingCapacity));
    if (channel->Write(data.data(), static_cast<std::uint32_t>(data.size()), 0) !=
        static_cast<std::int32_t>(data.size())) {
      return;
    }
    const std::lock_guard lock(sinksMutex);
    if (allLog && settings.allLog) allLog->Data(data, true);
  }
};

ChannelPort::ChannelPort(LinkSettings& settings, platform::Clock& clock, ChannelLibrary library)
    : settings_(settings), clock_(clock), library_(library) {}

ChannelPort::~ChannelPort() { Close(); }

Result ChannelPort::Open(std::int32_t port, std::int32_t baudRate) {
  if (port < 1 || baudRate < 1) return Result::InvalidParam;
  if (channel_) return Result::PortAlreadyOpened;
  CassorindChannel* created = nullptr;
  if (library_.create(&created, 0) == 0 || !created) return Result::CannotOpenPort;
  channel_ = std::shared_ptr<CassorindChannel>(
      created, [release = library_.release](CassorindChannel* channel) { release(channel); });

  if (settings_.ReceivesThroughThread() && !StartReceiveThread()) {
    channel_.reset();
    return Result::CannotOpenPort;
  }
  if (settings_.allLog) {
    std::array<char, 40> name;
    std::snprintf(name.data(), name.size(), "Com%d_AllLog.txt", static_cast<int>(port));
    allLog_ = std::make_shared<PortLog>();
    if (!allLog_->Open(name.data())) allLog_.reset();
  }
  if (settings_.SavesReceivedData()) {
    recording_ = std::make_shared<platform::AppendFile>();
    if (!recording_->Open(settings_.ReceivedDataPath())) recording_.reset();
  }
  if (reception_) {
    const std::lock_guard lock(reception_->sinksMutex);
    reception_->allLog = allLog_;
    reception_->recording = recording_;
  }

  const CassorindOpenParameters parameters{0, static_cast<std::uint32_t>(port),
                                           static_cast<std::uint32_t>(baudRate)};
  if (channel_->Open(&parameters) == 0) {
    StopReceiveThread();
    allLog_.reset();
    recording_.reset();
    channel_.reset();
    return Result::CannotOpenPort;
  }
  if (allLog_) {
    allLog_->Opened(port, baudRate);
  }
  return Result::Success;
}

Result ChannelPort::Close() {
  StopReceiveThread();
  if (!channel_) return Result::PortNotOpen;
  channel_->Close();
  channel_.reset();
  recording_.reset();
  if (allLog_ && settings_.allLog) allLog_->Line("Close");
  allLog_.reset();
  return Result::Success;
}

bool ChannelPort::StartReceiveThread() {
  StopReceiveThread();
  const auto reception =
      std::make_shared<Reception>(settings_, channel_, settings_.Server(), asserted_);
  if (!receiveThread_.Start([reception] { reception->Run(); })) return false;
  reception_ = reception;
  if (reception->server) reception->server->RegisterReceiver(receiveThread_.Id(), true);
  channel_->SetReceiver(kChannelDataMessage, 1, receiveThread_.Id());
  return true;
}

void ChannelPort::StopReceiveThread() {
  if (!reception_) return;
  const std::uint32_t id = receiveThread_.Id();
  if (reception_->server) reception_->server->RegisterReceiver(id, false);
  if (channel_) channel_->SetReceiver(kChannelDataMessage, 0, id);
  // Behind what was posted before, which is still recorded and logged.
  if (!platform::PostMessageToThread(id, platform::kQuitMessage, 0, 0)) reception_->stopped = true;
  if (!receiveThread_.WaitMs(kThreadStopLimitMs)) {
    reception_->stopped = true;
    receiveThread_.Abandon();
  }
  reception_.reset();
}

Result ChannelPort::Read(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs,
                         std::size_t& got) {
  got = 0;
  if (!channel_) {
    AvoidSpinning(timeLimitMs);
    return Result::PortNotOpen;
  }
  if (!cancel_) return ReadOnce(buffer, timeLimitMs, got);
  const platform::Deadline deadline(clock_, timeLimitMs);
  for (;;) {
    if (Cancelled()) return Result::NoData;
    const Result result = ReadOnce(buffer, std::min(deadline.RemainingMs(), kCancelPollMs), got);
    if (result != Result::NoData || deadline.Passed()) return result;
  }
}

Result ChannelPort::ReadOnce(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs,
                             std::size_t& got) {
  return reception_ ? ReadThreadRing(buffer, timeLimitMs, got)
                    : ReadChannel(buffer, timeLimitMs, got);
}

Result ChannelPort::ReadThreadRing(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs,
                                   std::size_t& got) {
  if (!reception_->ring.WaitNotEmpty(timeLimitMs)) return Result::NoData;
  got = reception_->ring.Consume(buffer);
  return got > 0 ? Result::Success : Result::NoData;
}

Result ChannelPort::ReadChannel(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs,
                                std::size_t& got) {
  const std::int32_t count =
      channel_->Read(buffer.data(), static_cast<std::uint32_t>(buffer.size()), timeLimitMs, 0);
  if (count < 1) {
    if (count < 0) AvoidSpinning(timeLimitMs);
    return Result::NoData;
  }
  got = std::min(static_cast<std::size_t>(count), buffer.size());
  const auto data = buffer.first(got);
  if (recording_ && settings_.SavesReceivedData()) Record(*recording_, data);
  if (allLog_ && settings_.allLog) allLog_->Data(data, false);
  return Result::Success;
}

// A closed port and a dead channel fail at once, and callers try again until their limit.
void ChannelPort::AvoidSpinning(std::uint32_t timeLimitMs) {
  if (timeLimitMs > 0) clock_.SleepMs(1);
}

Result ChannelPort::Write(std::span<const std::uint8_t> data) {
  if (!channel_) return Result::PortNotOpen;
  const std::int32_t written =
      channel_->Write(data.data(), static_cast<std::uint32_t>(data.size()), 0);
  if (written != static_cast<std::int32_t>(data.size())) return Result::WriteFailed;
  if (allLog_ && settings_.allLog) allLog_->Data(data, true);
  return Result::Success;
}

Result ChannelPort::Clear() {
  if (!channel_) return Result::PortNotOpen;
  return channel_->Clear() != 0 ? Result::Success : Result::NoData;
}

void ChannelPort::ClearThreadRing() {
  if (reception_) reception_->Clear(receiveThread_.Id());
}

bool ChannelPort::TakeAssert() { return asserted_->exchange(false); }

}  // namespace merovane
