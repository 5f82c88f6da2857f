#include "link/tapped_channel.h"

#include <utility>

#include "link/assert_watch.h"

namespace merovane {

TappedChannel::TappedChannel(std::unique_ptr<Channel> inner, const LinkSettings& settings,
                             Taps taps)
    : inner_(std::move(inner)),
      settings_(settings),
      server_(std::move(taps.server)),
      asserted_(std::move(taps.asserted)),
      allLog_(std::move(taps.allLog)),
      recording_(std::move(taps.recording)) {}

Result TappedChannel::Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs,
                           std::size_t& got) {
  const Result result = inner_->Read(into, timeLimitMs, got);
  if (Succeeded(result)) Received(into.first(got));
  return result;
}

Result TappedChannel::Write(std::span<const std::uint8_t> data) {
  const Result result = inner_->Write(data);
  if (!Succeeded(result)) return result;
  const platform::MutexLock lock(mutex_);
  if (allLog_ && settings_.allLog) allLog_->Data(data, true);
  return result;
}

void TappedChannel::Received(std::span<const std::uint8_t> chunk) {
  {
    const platform::MutexLock lock(mutex_);
    // A full disk costs the recording, never a command.
    if (recording_ && settings_.SavesReceivedData()) {
      static_cast<void>(
          recording_->Write({reinterpret_cast<const char*>(chunk.data()), chunk.size()}));
    }
    if (allLog_ && settings_.allLog) allLog_->Data(chunk, false);
  }
  if (server_ && server_->Forward(chunk) && HoldsAssertReport(chunk)) *asserted_ = true;
}

void TappedChannel::Opened(std::int32_t port, std::int32_t baudRate) {
  const platform::MutexLock lock(mutex_);
  if (allLog_) allLog_->Line(PortLog::OpenLine(port, baudRate));
}

void TappedChannel::Close() {
  inner_->Close();
  const platform::MutexLock lock(mutex_);
  recording_.reset();
  if (allLog_ && settings_.allLog) allLog_->Line("Close");
  allLog_.reset();
}

}  // namespace merovane
