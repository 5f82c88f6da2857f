#include "library/session.h"

#include <bit>
#include <memory>
#include <optional>

#include "declared/session.h"
#include "library/export_frame.h"
#include "platform/device_monitor.h"
#include "platform/event.h"
#include "platform/files.h"

namespace merovane::library {
namespace {

using PhonePointer = SessionRegistry::PhonePointer;

// How long the end of a port waits for a command that does not return although its link has ended.
constexpr std::uint32_t kEndLimitMs = 3300;

PhonePointer MakePhone() { return TheLibrary().MakePhone(); }

// Runs a session export that makes objects; out of memory gives 2, as where a port is opened.
template <typename Export>
std::int32_t Session(Export&& run) noexcept {
  try {
    return run();
  } catch (...) {
    return Reported(Result::CannotOpenPort);
  }
}

std::int32_t Begin(std::int32_t port, std::int32_t baudRate, bool asDefault) {
  Library& library = TheLibrary();
  library.environment.errors.BeginOperation(operation_id::kBeginPhoneTest);
  return Session([&] {
    if (port < 1 || baudRate < 1) return Reported(Result::InvalidParam);
    const PhonePointer phone = MakePhone();
    const Turn turn(phone->commandTurns);
    // Before it is opened: another thread may begin the same port now.
    if (!library.registry.Enter(port, phone)) return Reported(Result::PortAlreadyOpened);
    const Result opened = phone->link.Open(port, baudRate);
    if (!Succeeded(opened)) {
      Call::Note(phone->link);
      library.registry.Remove(port, phone);
      // Whoever waits for this turn finds no port.
      static_cast<void>(phone->commandTurns.End(0));
      return Reported(opened);
    }
    if (asDefault) library.registry.MakeDefault(port);
    return Reported(Result::Success);
  });
}

// Ends what other threads do with the phone, which is in the registry no more, then closes it.
Result Close(PhoneObject& phone) {
  phone.link.End();
  const platform::Deadline deadline(platform::SystemClock(), kEndLimitMs);
  const bool commandsLeft = phone.commandTurns.End(deadline.RemainingMs());
  const bool projectLeft = phone.projectTurns.End(deadline.RemainingMs());
  phone.modeProcess.End();
  // Whoever is still inside owns the phone, too, and closes it by letting go of it.
  if (!commandsLeft || !projectLeft) return Result::CannotCloseAllPorts;
  return phone.link.Close();
}

platform::CallerEvent EventOf(QV_EVENT event) {
  // A pointer on Windows, a number elsewhere.
  return platform::CallerEvent(std::bit_cast<std::intptr_t>(event));
}

// What the start of a mode process asks for, and how it is run.
struct ModeStart {
  std::uint32_t waitForPort;
  std::uint32_t mode;
  std::optional<platform::CallerEvent> event;  // none: returns when the process has ended
  std::uint32_t timeLimitMs;
};

Result StartMode(const PhonePointer& phone, const ModeStart& start,
                 std::optional<std::int32_t> expectedPort) {
  ModeProcess::Request request;
  request.waitForPort = start.waitForPort != 0;
  if (request.waitForPort) request.monitor = platform::CreateDeviceMonitor();
  request.mode = start.mode;
  request.sequence = TheLibrary().registry.nextSequence;
  request.event = start.event.value_or(platform::CallerEvent());
  request.timeLimitMs = start.timeLimitMs;
  request.expectedPort = expectedPort;
  const Result result = start.event ? phone->modeProcess.Start(phone, request)
                                    : phone->modeProcess.Run(phone, request);
  if (result == Result::EnterModeFailed) {
    const Turn turn(phone->commandTurns);
    if (turn) Call::Note(phone->link);
  }
  return result;
}

std::int32_t EnterMode(const ModeStart& start) {
  Library& library = TheLibrary();
  const bool waits = start.waitForPort != 0;
  library.environment.errors.BeginOperation(operation_id::kEnterModeProcess);
  const PhonePointer phone =
      waits ? library.registry.PortWaiting(MakePhone) : library.registry.Default();
  if (!phone) return ReportedUnreached(Result::PortNotOpen);
  library.registry.lastWaitedForPort = waits;
  return Reported(StartMode(phone, start, std::nullopt));
}

std::int32_t EnterMode(std::int32_t port, const ModeStart& start) {
  Library& library = TheLibrary();
  Result lookup = Result::Success;
  PhonePointer phone = library.registry.Find(port, lookup);
  if (lookup == Result::InvalidParam) return ReportedUnreached(lookup);
  if (start.waitForPort == 0) {
    if (!phone) return ReportedUnreached(lookup);
    library.environment.errors.BeginOperation(operation_id::kEnterModeProcess);
    return Reported(StartMode(phone, start, std::nullopt));
  }
  library.environment.errors.BeginOperation(operation_id::kEnterModeProcess);
  if (start.event && start.event->IsNull()) return Reported(Result::InvalidParam);
  // A fresh object: the old one's link is of no use once its device goes.
  phone = MakePhone();
  while (!library.registry.Enter(port, phone)) {
    if (const PhonePointer old = library.registry.Remove(port)) static_cast<void>(Close(*old));
  }
  return Reported(StartMode(phone, start, port));
}

}  // namespace

std::int32_t BeginPhoneTest(std::int32_t port, std::int32_t baudRate) {
  return Begin(port, baudRate, true);
}

std::int32_t BeginPhoneTest_MT(std::int32_t port, std::int32_t baudRate) {
  return Begin(port, baudRate, false);
}

bool CloseAll(Library& library) {
  bool closed = true;
  for (const PhonePointer& phone : library.registry.RemoveAll()) {
    closed = Succeeded(Close(*phone)) && closed;
  }
  if (const PhonePointer waiting = library.registry.PortWaiting()) waiting->modeProcess.Stop();
  return closed;
}

std::int32_t EndPhoneTest() {
  Library& library = TheLibrary();
  library.environment.errors.BeginOperation(operation_id::kEndPhoneTest);
  Call::EndsSession();
  return Reported(
      Guarded([&] { return CloseAll(library) ? Result::Success : Result::CannotCloseAllPorts; }));
}

std::int32_t EndPhoneTest_MT(std::int32_t port) {
  Library& library = TheLibrary();
  Result lookup = Result::Success;
  if (!library.registry.Find(port, lookup)) return ReportedUnreached(lookup);
  library.environment.errors.BeginOperation(operation_id::kEndPhoneTest);
  Call::EndsSession();
  return Reported(Guarded([&] {
    if (const PhonePointer phone = library.registry.Remove(port)) static_cast<void>(Close(*phone));
    return Result::Success;
  }));
}

std::int32_t SetProperty(std::uint32_t property, std::uintptr_t value1, std::uintptr_t value2) {
  LinkEnvironment& environment = TheLibrary().environment;
  LinkSettings& settings = environment.settings;
  return Reported(Guarded([&] {
    switch (property) {
      case QV_PROPERTY_USEFUL_LOG:
        settings.usefulLog = value2 != 0;
        break;
      case QV_PROPERTY_SAVE_RECEIVED_DATA:
        // NOLINTNEXTLINE(performance-no-int-to-ptr): this property's value is an address
        SaveRecvData(static_cast<std::uint32_t>(value1), reinterpret_cast<const char*>(value2));
        break;
      case QV_PROPERTY_CHANNEL_SERVER:
        environment.server.Use(value2 != 0);
        break;
      case QV_PROPERTY_RECEIVE_MODE:
        SetRecvMode(static_cast<std::uint32_t>(value2));
        break;
      case QV_PROPERTY_BIG_ENDIAN:
        settings.SetOrder(value2 != 0 ? ByteOrder::Big() : ByteOrder::Little());
        break;
      default:
        break;
    }
    return Result::Success;
  }));
}

std::int32_t GetProperty(std::uint32_t property, std::uintptr_t, std::uint32_t* value) {
  if (property != QV_PROPERTY_BIG_ENDIAN) return Reported(Result::Success);
  if (!value) return Reported(Result::InvalidParam);
  *value = TheLibrary().environment.settings.Order().IsBig() ? 1 : 0;
  return Reported(Result::Success);
}

void SetRecvMode(std::uint32_t mode) { TheLibrary().environment.settings.receiveMode = mode; }

void SaveRecvData(std::uint32_t on, const char* path) {
  static_cast<void>(Guarded([&] {
    const bool records = on != 0 && path && *path;
    TheLibrary().environment.settings.SaveReceivedData(
        records, records ? platform::PathFromText(path) : std::filesystem::path());
    return Result::Success;
  }));
}

std::int32_t IsPhoneAssert() {
  const PhonePointer phone = TheLibrary().registry.Default();
  return phone && phone->link.IsAssert() ? 1 : 0;
}

std::int32_t GetUsbPort() {
  const PhonePointer phone = TheLibrary().registry.PortWaiting();
  return phone ? phone->modeProcess.PortFound() : 0;
}

std::int32_t EnterModeProcess(std::uint32_t waitForPort, std::uint32_t mode, QV_EVENT event,
                              std::uint32_t timeLimitMs) {
  return Session([&] { return EnterMode({waitForPort, mode, EventOf(event), timeLimitMs}); });
}

std::int32_t EnterModeProcess_MT(std::int32_t port, std::uint32_t waitForPort, std::uint32_t mode,
                                 QV_EVENT event, std::uint32_t timeLimitMs) {
  return Session([&] { return EnterMode(port, {waitForPort, mode, EventOf(event), timeLimitMs}); });
}

std::int32_t EnterModeProcessEx(std::uint32_t waitForPort, std::uint32_t mode,
                                std::uint32_t timeLimitMs) {
  return Session([&] { return EnterMode({waitForPort, mode, std::nullopt, timeLimitMs}); });
}

std::int32_t EnterModeProcessEx_MT(std::int32_t port, std::uint32_t waitForPort, std::uint32_t mode,
                                   std::uint32_t timeLimitMs) {
  return Session([&] { return EnterMode(port, {waitForPort, mode, std::nullopt, timeLimitMs}); });
}

std::int32_t StopModeProcess() {
  SessionRegistry& registry = TheLibrary().registry;
  const PhonePointer phone =
      registry.lastWaitedForPort ? registry.PortWaiting() : registry.Default();
  if (!phone) return ReportedUnreached(Result::PortNotOpen);
  TheLibrary().environment.errors.BeginOperation(operation_id::kStopModeProcess);
  phone->modeProcess.Stop();
  return Reported(Result::Success);
}

std::int32_t StopModeProcess_MT(std::int32_t port) {
  Result lookup = Result::Success;
  const PhonePointer phone = TheLibrary().registry.Find(port, lookup);
  if (!phone) return ReportedUnreached(lookup);
  TheLibrary().environment.errors.BeginOperation(operation_id::kStopModeProcess);
  phone->modeProcess.Stop();
  return Reported(Result::Success);
}

namespace {

std::int32_t ResetMode(const PhonePointer& phone, std::uint32_t throughPort,
                       std::uint32_t rebootKind, QV_EVENT event, std::uint32_t timeLimitMs,
                       std::optional<std::int32_t> expectedPort) {
  return Reported(Guarded([&] {
    return phone->modeProcess.Reset(phone, {.throughPort = throughPort != 0,
                                            .rebootKind = rebootKind,
                                            .event = EventOf(event),
                                            .timeLimitMs = timeLimitMs,
                                            .expectedPort = expectedPort,
                                            .monitor = platform::CreateDeviceMonitor()});
  }));
}

}  // namespace

std::int32_t ResetModeProcess(std::uint32_t throughPort, std::uint32_t rebootKind, QV_EVENT event,
                              std::uint32_t timeLimitMs) {
  const PhonePointer phone = TheLibrary().registry.Default();
  if (!phone) return ReportedUnreached(Result::PortNotOpen);
  return ResetMode(phone, throughPort, rebootKind, event, timeLimitMs, std::nullopt);
}

std::int32_t ResetModeProcess_MT(std::int32_t port, std::uint32_t throughPort,
                                 std::uint32_t rebootKind, QV_EVENT event,
                                 std::uint32_t timeLimitMs) {
  Result lookup = Result::Success;
  const PhonePointer phone = TheLibrary().registry.Find(port, lookup);
  if (!phone) return ReportedUnreached(lookup);
  return ResetMode(phone, throughPort, rebootKind, event, timeLimitMs, port);
}

std::int32_t SetCampParam(std::uint32_t campParameter) {
  TheLibrary().environment.errors.ClearReport();
  TheLibrary().registry.nextSequence = campParameter;
  return Reported(Result::Success);
}

}  // namespace merovane::library
