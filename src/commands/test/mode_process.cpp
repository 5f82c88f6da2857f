#include "commands/test/mode_process.h"

#include <algorithm>
#include <utility>

#include "commands/operation.h"
#include "commands/phone.h"
#include "commands/test/phone_mode.h"
#include "link/frame_codec.h"
#include "platform/message_queue.h"

namespace merovane {
namespace {

constexpr std::uint32_t kStartDataAttemptMs = 1000;
constexpr std::uint32_t kStopLimitMs = 3300;
constexpr std::int32_t kArrivedPortBaudRate = 115200;
// A handset in this mode does not come back on a port of its own.
constexpr std::uint32_t kModeWithoutSecondArrival = 10;

std::uint8_t ResetCode(std::uint32_t rebootKind) {
  switch (rebootKind) {
    case 1:
      return 3;
    case 5:
      return 9;
    case 6:
      return 14;
    case 7:
      return 16;
    case 8:
      return 15;
    case 9:
      return 17;
    default:
      return 0;
  }
}

}  // namespace

ModeProcess::~ModeProcess() { Stop(); }

void ModeProcess::SetDeviceMonitor(std::shared_ptr<platform::DeviceMonitor> monitor) {
  monitor_ = std::move(monitor);
}

Result ModeProcess::Start(const std::shared_ptr<Phone>& phone, const Request& request) {
  if (request.event.IsNull()) return Result::InvalidParam;
  request.event.Reset();
  Stop();
  if (request.waitForPort) {
    if (!monitor_) return Result::InvalidParam;
    monitor_->Start();
  }
  return StartWorker(phone, request);
}

Result ModeProcess::Run(const std::shared_ptr<Phone>& phone, const Request& request) {
  Stop();
  if (request.waitForPort) {
    if (!monitor_) return Result::InvalidParam;
    monitor_->Start();
  }
  const Result started = StartWorker(phone, request);
  if (!Succeeded(started)) return started;
  while (running_) {
    platform::Message message;
    if (platform::TakeMessage(message, 10)) platform::DispatchForeignMessage(message);
  }
  return done_.IsSet() ? Result::Success : Result::EnterModeFailed;
}

void ModeProcess::Stop() {
  stop_.Set();
  if (!worker_.WaitMs(kStopLimitMs)) worker_.Abandon();
}

Result ModeProcess::StartWorker(const std::shared_ptr<Phone>& phone, const Request& request) {
  stop_.Reset();
  done_.Reset();
  portFound_ = 0;
  running_ = true;
  const bool started = worker_.Start([this, owner = phone, request]() mutable {
    Work(*owner, request);
    // The owner may end here, and this object with it.
    owner.reset();
  });
  if (started) return Result::Success;
  running_ = false;
  return Result::EnterModeFailed;
}

void ModeProcess::Work(Phone& phone, const Request& request) {
  phone.link.Channel().SetCancel(&stop_);
  const bool caught =
      request.waitForPort ? WorkOnArrivingPort(phone, request) : WorkOnOpenLink(phone, request);
  phone.link.Channel().SetCancel(nullptr);
  if (caught) {
    done_.Set();
    request.event.Set();
  }
  running_ = false;
}

bool ModeProcess::WorkOnOpenLink(Phone& phone, const Request& request) {
  const bool limited = request.timeLimitMs != 0;
  const platform::Deadline deadline(phone.link.Clock(), request.timeLimitMs);
  while (!stop_.IsSet() && !(limited && deadline.Passed())) {
    const std::uint32_t attemptMs =
        limited ? std::clamp(deadline.RemainingMs(), 1U, kStartDataAttemptMs) : kStartDataAttemptMs;
    std::uint8_t header[kHeaderBytes];
    std::uint32_t length = 0;
    if (!Succeeded(commands::RecvPhoneStartData(phone, header, kHeaderBytes, &length, attemptMs))) {
      continue;
    }
    // That the handset booted is what counts, not what it says to the mode.
    static_cast<void>(commands::SetPhoneStartMode(phone, request.mode));
    return true;
  }
  return false;
}

bool ModeProcess::WorkOnArrivingPort(Phone& phone, const Request& request) {
  const bool limited = request.timeLimitMs != 0;
  const platform::Deadline deadline(phone.link.Clock(), request.timeLimitMs);
  int arrivals = 0;
  for (;;) {
    if (stop_.WaitMs(1) || (limited && deadline.Passed())) return false;
    std::int32_t port = 0;
    if (!monitor_->TakeArrival(port)) continue;
    if (request.expectedPort && port != *request.expectedPort) continue;
    portFound_ = port;
    // The handset coming back after the mode change.
    if (++arrivals > 1) break;

    if (!Succeeded(phone.link.Open(port, kArrivedPortBaudRate))) return false;
    if (request.reopenOnly) return true;
    const Result mode = commands::SetPhoneStartMode(phone, request.mode);
    static_cast<void>(phone.link.Close());
    if (!Succeeded(mode)) {
      arrivals = 0;
    } else if (request.mode == kModeWithoutSecondArrival) {
      static_cast<void>(stop_.WaitMs(100));
      break;
    }
  }
  if (!request.expectedPort) return true;
  return Succeeded(phone.link.Open(portFound_, kArrivedPortBaudRate));
}

Result ModeProcess::Reset(const std::shared_ptr<Phone>& phone, bool throughPort,
                          std::uint32_t rebootKind, platform::CallerEvent event,
                          std::uint32_t timeLimitMs, std::optional<std::int32_t> expectedPort) {
  const commands::Operation operation(*phone, 183);
  if (event.IsNull()) return Result::InvalidParam;
  Stop();
  if (!throughPort) {
    const Result result = commands::RestartPhone(*phone, timeLimitMs);
    if (Succeeded(result)) event.Set();
    return result;
  }
  if (!monitor_) return Result::InvalidParam;
  event.Reset();
  // Before the restart: the device may be back before its absence is noticed.
  monitor_->Start();
  std::uint32_t reachable = 0;
  const Result result = commands::UsbChangePhoneMode(*phone, ResetCode(rebootKind), &reachable);
  if (!Succeeded(result)) return result;
  if (reachable == 1) {
    event.Set();
    return Result::Success;
  }
  static_cast<void>(phone->link.Close());
  Request request;
  request.waitForPort = true;
  request.event = event;
  request.timeLimitMs = timeLimitMs;
  request.reopenOnly = true;
  request.expectedPort = expectedPort;
  return StartWorker(phone, request);
}

}  // namespace merovane
