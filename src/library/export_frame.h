// The frame of every exported command: the object that it works on, its turn there, the report of
// its result, and no exception.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "library/call.h"
#include "library/library.h"
#include "link/result.h"
#include "nvproject/nv_image.h"
#include "platform/clock.h"

namespace merovane::library {

// The command's result; one that ran out of memory could not make its request.
template <typename Command>
Result Guarded(Command&& command) noexcept {
  try {
    return std::forward<Command>(command)();
  } catch (...) {
    return Result::EncodeFailed;
  }
}

inline std::int32_t Reported(Result result) {
  return static_cast<std::int32_t>(TheLibrary().environment.errors.Report(result));
}

// No command ran: the result is reported under no operation.
inline std::int32_t ReportedUnreached(Result result) {
  TheLibrary().environment.errors.ClearReport();
  return Reported(result);
}

template <typename Command>
std::int32_t RunCommand(PhoneObject& phone, Command&& command) noexcept {
  const Turn turn(phone.commandTurns);
  if (!turn) return ReportedUnreached(Result::PortNotOpen);
  Result result = Guarded([&] {
    const PhoneLink::NoteScope noted(phone.link, Call::Exchanges());
    return command(phone);
  });
  // A command may make something else of it, or nothing.
  if (phone.link.WasCutShort()) result = Result::PortNotOpen;
  if (!Succeeded(result)) Call::Note(phone.link);
  return Reported(result);
}

template <typename Operation>
std::int32_t RunProject(PhoneObject& phone, std::uint32_t id, Operation&& operation) noexcept {
  const Turn turn(phone.projectTurns);
  if (!turn) return ReportedUnreached(Result::PortNotOpen);
  TheLibrary().environment.errors.BeginOperation(id);
  return Reported(Guarded([&] { return operation(phone); }));
}

template <typename Run>
std::int32_t OnDefaultObject(Run&& run) noexcept {
  const auto phone = TheLibrary().registry.Default();
  if (!phone) return ReportedUnreached(Result::PortNotOpen);
  Call::Reached(phone->link.Port());
  return run(*phone);
}

template <typename Run>
std::int32_t OnObjectOf(std::int32_t port, Run&& run) noexcept {
  Result failure = Result::Success;
  const auto phone = TheLibrary().registry.Find(port, failure);
  return phone ? run(*phone) : ReportedUnreached(failure);
}

template <typename Command>
std::int32_t OnDefaultPhone(Command&& command) noexcept {
  return OnDefaultObject([&](PhoneObject& phone) { return RunCommand(phone, command); });
}

template <typename Command>
std::int32_t OnPhone(std::int32_t port, Command&& command) noexcept {
  return OnObjectOf(port, [&](PhoneObject& phone) { return RunCommand(phone, command); });
}

// `operation` gets the object for its NV project.
template <typename Operation>
std::int32_t OnDefaultProject(std::uint32_t id, Operation&& operation) noexcept {
  return OnDefaultObject([&](PhoneObject& phone) { return RunProject(phone, id, operation); });
}

template <typename Operation>
std::int32_t OnProjectOf(std::int32_t port, std::uint32_t id, Operation&& operation) noexcept {
  return OnObjectOf(port, [&](PhoneObject& phone) { return RunProject(phone, id, operation); });
}

inline nvproject::ImageContext ImageContextNow() {
  return {TheLibrary().environment.settings.Order(), platform::SystemClock().NowMs()};
}

// For what a project function has to say. Commands may run meanwhile.
inline nvproject::LogLine UsefulLogOf(PhoneObject& phone) {
  return [&phone](std::string_view line) { phone.link.LogLine(line); };
}

}  // namespace merovane::library
