#include "link/serial_channel.h"

#include <algorithm>
#include <cstring>

#include "platform/module.h"

namespace merovane {
namespace {

OpenTrouble TroubleOf(std::int32_t reason) {
  switch (reason) {
    case CASSORIND_NO_DEVICE:
      return OpenTrouble::NoDevice;
    case CASSORIND_DEVICE_TAKEN:
      return OpenTrouble::DeviceTaken;
    case CASSORIND_DEVICE_DENIED:
      return OpenTrouble::DeviceDenied;
    case CASSORIND_NO_SERIAL_DEVICE:
      return OpenTrouble::NoSerialDevice;
    case CASSORIND_PIPE:
      return OpenTrouble::Pipe;
    case CASSORIND_RATE_REFUSED:
      return OpenTrouble::RateRefused;
    case CASSORIND_ADDRESS_MALFORMED:
      return OpenTrouble::AddressMalformed;
    case CASSORIND_HOST_UNKNOWN:
      return OpenTrouble::HostUnknown;
    case CASSORIND_CONNECTION_REFUSED:
      return OpenTrouble::ConnectionRefused;
    default:
      return OpenTrouble::NoReason;
  }
}

}  // namespace

std::unique_ptr<SerialChannel> SerialChannel::Make(const ChannelLibrary& library,
                                                   platform::Clock& clock) {
  std::unique_ptr<SerialChannel> made(new SerialChannel(library, clock));
  if (library.create(&made->channel_, 0) == 0 || !made->channel_) return nullptr;
  return made;
}

SerialChannel::~SerialChannel() {
  if (channel_) library_.release(channel_);
}

bool SerialChannel::Open(std::int32_t port, std::int32_t baudRate) {
  const CassorindOpenParameters parameters{0, static_cast<std::uint32_t>(port),
                                           static_cast<std::uint32_t>(baudRate)};
  return channel_->Open(&parameters) != 0;
}

void SerialChannel::ExplainOpening(LinkEvidence& evidence) const {
  auto* explain = library_.explain;
  platform::Module loaded;
  if (!explain && loaded.Load("Cassorind")) {
    explain = reinterpret_cast<decltype(explain)>(loaded.Find("CassorindLastFailure"));
  }
  CassorindFailure failure{};
  if (!explain || explain(&failure) == 0) return;
  evidence.trouble = TroubleOf(failure.reason);
  evidence.systemError = failure.systemError;
  evidence.device.assign(failure.device, strnlen(failure.device, sizeof failure.device));
}

void SerialChannel::PostTo(std::uint32_t threadId) {
  channel_->SetReceiver(kChannelDataMessage, 1, threadId);
}

Result SerialChannel::Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs,
                           std::size_t& got) {
  got = 0;
  const std::int32_t count =
      channel_->Read(into.data(), static_cast<std::uint32_t>(into.size()), timeLimitMs, 0);
  if (count < 0) {
    // It fails at once, and callers try again until their limit.
    if (timeLimitMs > 0) clock_.SleepMs(1);
    return Result::DriverError;
  }
  if (count == 0) return Result::NoData;
  got = std::min(static_cast<std::size_t>(count), into.size());
  return Result::Success;
}

Result SerialChannel::Write(std::span<const std::uint8_t> data) {
  const auto length = static_cast<std::uint32_t>(data.size());
  return channel_->Write(data.data(), length, 0) == static_cast<std::int32_t>(length)
             ? Result::Success
             : Result::WriteFailed;
}

void SerialChannel::DropReceived() { channel_->Clear(); }

void SerialChannel::Close() { channel_->Close(); }

}  // namespace merovane
