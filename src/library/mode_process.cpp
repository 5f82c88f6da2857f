#include "library/mode_process.h"

#include <atomic>
#include <exception>

#include "declared/phone_mode.h"
#include "declared/session.h"
#include "library/phone_object.h"
#include "link/frame_codec.h"
#include "platform/clock.h"
#include "platform/message_queue.h"

namespace merovane::library {
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

// One wait for a handset, on a thread of its own.
class ModeProcess::Worker {
 public:
  explicit Worker(const Request& request) : request_(request) {}

  void Work(PhoneObject& phone) {
    bool caught = false;
    try {
      caught = request_.waitForPort ? WorkOnArrivingPort(phone) : WorkOnOpenLink(phone);
    } catch (const std::exception&) {
      // Out of memory: nothing was caught.
    }
    request_.monitor.reset();
    // A worker that was given up changes nothing any more.
    if (!givenUp_) {
      caught_ = caught;
      if (caught) request_.event.Set();
    }
    running_ = false;
  }

  void Stop() { stop_.Set(); }
  void GiveUp() { givenUp_ = true; }

  bool IsRunning() const { return running_; }
  bool HasCaught() const { return caught_; }
  std::int32_t PortFound() const { return portFound_; }

 private:
  bool WorkOnOpenLink(PhoneObject& phone);
  bool CatchOnOpenLink(PhoneObject& phone);
  bool WorkOnArrivingPort(PhoneObject& phone);
  bool Open(PhoneObject& phone);
  std::optional<Result> SetMode(PhoneObject& phone);

  Request request_;
  platform::Event stop_;
  std::atomic<bool> givenUp_{false};
  std::atomic<bool> running_{true};
  std::atomic<bool> caught_{false};
  std::atomic<std::int32_t> portFound_{0};
};

bool ModeProcess::Worker::WorkOnOpenLink(PhoneObject& phone) {
  const bool limited = request_.timeLimitMs != 0;
  const platform::Deadline deadline(phone.link.Clock(), request_.timeLimitMs);
  while (!stop_.IsSet() && !(limited && deadline.Passed())) {
    // A turn each, so that commands of other threads come in between.
    const Turn turn(phone.commandTurns);
    if (!turn) return false;
    if (CatchOnOpenLink(phone)) return true;
  }
  return false;
}

bool ModeProcess::Worker::CatchOnOpenLink(PhoneObject& phone) {
  const PhoneLink::CancelScope scope(phone.link, stop_);
  std::uint8_t header[kHeaderBytes];
  std::uint32_t length = 0;
  if (!Succeeded(commands::RecvPhoneStartData(phone, header, kHeaderBytes, &length,
                                              kStartDataAttemptMs))) {
    return false;
  }
  // That the handset booted is what counts, not what it says to the mode.
  static_cast<void>(commands::SetPhoneStartMode(phone, request_.mode));
  return true;
}

bool ModeProcess::Worker::WorkOnArrivingPort(PhoneObject& phone) {
  const bool limited = request_.timeLimitMs != 0;
  const platform::Deadline deadline(phone.link.Clock(), request_.timeLimitMs);
  int arrivals = 0;
  for (;;) {
    if (stop_.WaitMs(1) || (limited && deadline.Passed())) return false;
    std::int32_t port = 0;
    if (!request_.monitor->TakeArrival(port)) continue;
    if (request_.expectedPort && port != *request_.expectedPort) continue;
    portFound_ = port;
    // The handset coming back after the mode change.
    if (++arrivals > 1) break;

    if (request_.reopenOnly) return Open(phone);
    const std::optional<Result> mode = SetMode(phone);
    if (!mode) return false;
    if (!Succeeded(*mode)) {
      arrivals = 0;
    } else if (request_.mode == kModeWithoutSecondArrival) {
      static_cast<void>(stop_.WaitMs(100));
      break;
    }
  }
  return !request_.expectedPort || Open(phone);
}

// Leaves the link open.
bool ModeProcess::Worker::Open(PhoneObject& phone) {
  const Turn turn(phone.commandTurns);
  return turn && Succeeded(phone.link.Open(portFound_, kArrivedPortBaudRate)) && !stop_.IsSet();
}

// What the mode command gives on the port found; nothing when that cannot be opened.
std::optional<Result> ModeProcess::Worker::SetMode(PhoneObject& phone) {
  const Turn turn(phone.commandTurns);
  if (!turn) return std::nullopt;
  const PhoneLink::CancelScope scope(phone.link, stop_);
  if (!Succeeded(phone.link.Open(portFound_, kArrivedPortBaudRate))) return std::nullopt;
  const Result mode =
      stop_.IsSet() ? Result::NoAnswer : commands::SetPhoneStartMode(phone, request_.mode);
  static_cast<void>(phone.link.Close());
  return mode;
}

ModeProcess::~ModeProcess() { Stop(); }

Result ModeProcess::Start(const std::shared_ptr<PhoneObject>& phone, const Request& request) {
  if (request.event.IsNull()) return Result::InvalidParam;
  // First: an older worker may still set the same event.
  Stop();
  request.event.Reset();
  return Begin(phone, request);
}

Result ModeProcess::Run(const std::shared_ptr<PhoneObject>& phone, const Request& request) {
  const Result started = Begin(phone, request);
  if (!Succeeded(started)) return started;
  const std::shared_ptr<Worker> worker = Current();
  std::optional<platform::Message> quit;
  while (worker->IsRunning()) {
    platform::Message message;
    if (!platform::TakeMessage(message, 10)) continue;
    if (message.id == platform::kQuitMessage) {
      quit = message;
    } else {
      platform::DispatchForeignMessage(message);
    }
  }
  // It is for the caller's own message loop.
  if (quit) {
    platform::PostMessageToThread(platform::CurrentThreadId(), quit->id, quit->first, quit->second);
  }
  return worker->HasCaught() ? Result::Success : Result::EnterModeFailed;
}

void ModeProcess::Stop() {
  const platform::MutexLock lock(control_);
  StopWorker();
}

void ModeProcess::End() {
  const platform::MutexLock lock(control_);
  ended_ = true;
  StopWorker();
}

void ModeProcess::StopWorker() {
  const std::shared_ptr<Worker> worker = Current();
  if (!worker) return;
  worker->Stop();
  if (thread_.WaitMs(kStopLimitMs)) return;
  worker->GiveUp();
  thread_.Abandon();
}

std::int32_t ModeProcess::PortFound() const {
  const std::shared_ptr<Worker> worker = Current();
  return worker ? worker->PortFound() : 0;
}

std::shared_ptr<ModeProcess::Worker> ModeProcess::Current() const {
  const platform::MutexLock lock(currentMutex_);
  return current_;
}

Result ModeProcess::Begin(const std::shared_ptr<PhoneObject>& phone, const Request& request) {
  if (request.waitForPort) {
    if (!request.monitor) return Result::InvalidParam;
    request.monitor->Start();
  }
  return StartWorker(phone, request);
}

Result ModeProcess::StartWorker(const std::shared_ptr<PhoneObject>& phone, const Request& request) {
  const platform::MutexLock lock(control_);
  StopWorker();
  if (ended_) return Result::PortNotOpen;
  phone->link.SetNextSequence(request.sequence);
  const auto worker = std::make_shared<Worker>(request);
  {
    const platform::MutexLock currentLock(currentMutex_);
    current_ = worker;
  }
  const bool started = thread_.Start([worker, owner = phone]() mutable {
    worker->Work(*owner);
    // The owner may end here, and the mode process with it.
    owner.reset();
  });
  return started ? Result::Success : Result::EnterModeFailed;
}

Result ModeProcess::Reset(const std::shared_ptr<PhoneObject>& phone, const Restart& restart) {
  phone->link.BeginOperation(operation_id::kResetModeProcess);
  if (restart.event.IsNull()) return Result::InvalidParam;
  Stop();
  bool comesBack = false;
  const Result result = RestartInTurn(*phone, restart, comesBack);
  if (!Succeeded(result)) return result;
  if (!comesBack) {
    restart.event.Set();
    return Result::Success;
  }
  Request request;
  request.waitForPort = true;
  request.monitor = restart.monitor;
  request.event = restart.event;
  request.timeLimitMs = restart.timeLimitMs;
  request.reopenOnly = true;
  request.expectedPort = restart.expectedPort;
  return StartWorker(phone, request);
}

// `comesBack`: the handset is to be found again on a port that arrives.
Result ModeProcess::RestartInTurn(PhoneObject& phone, const Restart& restart, bool& comesBack) {
  const Turn turn(phone.commandTurns);
  if (!turn) return Result::PortNotOpen;
  if (!restart.throughPort) return commands::RestartPhone(phone, restart.timeLimitMs);
  if (!restart.monitor) return Result::InvalidParam;
  restart.event.Reset();
  // Before the restart: the device may be back before its absence is noticed.
  restart.monitor->Start();
  std::uint32_t reachable = 0;
  const Result result =
      commands::UsbChangePhoneMode(phone, ResetCode(restart.rebootKind), &reachable);
  comesBack = Succeeded(result) && reachable != 1;
  if (comesBack) static_cast<void>(phone.link.Close());
  return result;
}

}  // namespace merovane::library
