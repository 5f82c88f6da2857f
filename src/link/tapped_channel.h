// A channel that shows what passes to whoever listens: the All log, the recording of received data,
// the channel server, the watch for asserts.
#pragma once

#include <atomic>
#include <memory>

#include "link/channel.h"
#include "link/channel_server.h"
#include "link/port_log.h"
#include "link/settings.h"
#include "platform/files.h"
#include "platform/mutex.h"

namespace merovane {

// Each may be missing, but for the last.
struct Taps {
  std::unique_ptr<PortLog> allLog;
  std::unique_ptr<platform::AppendFile> recording;
  std::shared_ptr<ServerConnection> server;
  std::shared_ptr<std::atomic<bool>> asserted;
};

class TappedChannel final : public Channel {
 public:
  TappedChannel(std::unique_ptr<Channel> inner, const LinkSettings& settings, Taps taps);

  Result Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs, std::size_t& got) override;
  Result Write(std::span<const std::uint8_t> data) override;
  void DropReceived() override { inner_->DropReceived(); }
  void Close() override;

  // Begins the All log.
  void Opened(std::int32_t port, std::int32_t baudRate);
  // What arrived by another way than Read. For any thread, also after the close.
  void Received(std::span<const std::uint8_t> chunk);

 private:
  const std::unique_ptr<Channel> inner_;
  const LinkSettings& settings_;
  const std::shared_ptr<ServerConnection> server_;
  const std::shared_ptr<std::atomic<bool>> asserted_;
  platform::Mutex mutex_;
  std::unique_ptr<PortLog> allLog_ MEROVANE_GUARDED_BY(mutex_);
  std::unique_ptr<platform::AppendFile> recording_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane
