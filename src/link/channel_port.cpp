#include "link/channel_port.h"

#include <array>
#include <cstdio>
#include <utility>

#include "platform/serial_ports.h"

namespace merovane {

ChannelPort::ChannelPort(const LinkEnvironment& environment, platform::Clock& clock,
                         ChannelLibrary library)
    : environment_(environment), clock_(clock), library_(library) {}

Result ChannelPort::Open(std::int32_t port, std::int32_t baudRate) {
  if (port < 1 || baudRate < 1) return Result::InvalidParam;
  if (channel_) return Result::PortAlreadyOpened;
  auto serial = SerialChannel::Make(library_, clock_);
  opened_ = {};
  opened_.port = port;
  opened_.device = platform::DeviceOfPort(port);
  opened_.trouble = OpenTrouble::NoReason;
  if (!serial) return Result::CannotOpenPort;
  SerialChannel& device = *serial;

  const LinkSettings& settings = environment_.settings;
  Taps taps;
  taps.asserted = asserted_;
  if (settings.allLog) {
    std::array<char, 40> name;
    std::snprintf(name.data(), name.size(), "Com%d_AllLog.txt", static_cast<int>(port));
    taps.allLog = std::make_unique<PortLog>();
    if (!taps.allLog->Open(settings.Folder(), name.data())) taps.allLog.reset();
  }
  if (settings.SavesReceivedData()) {
    taps.recording = std::make_unique<platform::AppendFile>();
    if (!taps.recording->Open(settings.ReceivedDataPath())) taps.recording.reset();
  }
  const std::shared_ptr<ServerConnection> server = taps.server = environment_.server.Connection();
  const auto line = std::make_shared<TappedChannel>(std::move(serial), settings, std::move(taps));
  std::shared_ptr<Channel> channel = line;
  if (server || settings.receiveMode == 1) channel = ThreadedChannel::Start(line, device, server);
  if (!channel) return Result::CannotOpenPort;
  if (!device.Open(port, baudRate)) {
    device.ExplainOpening(opened_);
    return Result::CannotOpenPort;
  }
  opened_.trouble = OpenTrouble::None;
  line->Opened(port, baudRate);
  line_ = line;
  channel_ = std::move(channel);
  return Result::Success;
}

Result ChannelPort::Close() {
  if (!channel_) return Result::PortNotOpen;
  channel_->Close();
  channel_.reset();
  line_.reset();
  return Result::Success;
}

Result ChannelPort::Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs,
                         std::size_t& got) {
  got = 0;
  if (channel_) return channel_->Read(into, timeLimitMs, got);
  // It fails at once, and callers try again until their limit.
  if (timeLimitMs > 0) clock_.SleepMs(1);
  return Result::PortNotOpen;
}

Result ChannelPort::Write(std::span<const std::uint8_t> data) {
  return channel_ ? channel_->Write(data) : Result::PortNotOpen;
}

void ChannelPort::DropHeld() {
  if (line_) line_->DropReceived();
}

void ChannelPort::DropFetched() {
  if (channel_ != line_) channel_->DropReceived();
}

}  // namespace merovane
