// The frame of every exported command: the object that it works on, the report of its result, and
// no exception.
#pragma once

#include <cstdint>
#include <utility>

#include "library/library.h"
#include "link/byte_order.h"
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
  return static_cast<std::int32_t>(TheLibrary().settings.errors.Report(result));
}

// No command ran: the result is reported under no operation.
inline std::int32_t ReportedUnreached(Result result) {
  TheLibrary().settings.errors.ClearReport();
  return Reported(result);
}

template <typename Command>
std::int32_t OnDefaultPhone(Command&& command) noexcept {
  const auto phone = TheLibrary().registry.Default();
  if (!phone) return ReportedUnreached(Result::PortNotOpen);
  return Reported(Guarded([&] { return command(*phone); }));
}

template <typename Command>
std::int32_t OnPhone(std::int32_t port, Command&& command) noexcept {
  Result failure = Result::Success;
  const auto phone = TheLibrary().registry.Find(port, failure);
  if (!phone) return ReportedUnreached(failure);
  return Reported(Guarded([&] { return command(*phone); }));
}

// Commands on the phone object's NV project, which get what holds it; their results are reported
// under the operation's id.
template <typename Command>
std::int32_t OnProjectOf(std::int32_t port, std::uint32_t operation, Command&& command) noexcept {
  return OnPhone(port, [&](PhoneObject& phone) {
    TheLibrary().settings.errors.BeginOperation(operation);
    return command(phone.project);
  });
}

template <typename Command>
std::int32_t OnDefaultProject(std::uint32_t operation, Command&& command) noexcept {
  return OnDefaultPhone([&](PhoneObject& phone) {
    TheLibrary().settings.errors.BeginOperation(operation);
    return command(phone.project);
  });
}

inline nvproject::ImageContext ImageContextNow() {
  return {CurrentByteOrder(), platform::SystemClock().NowMs()};
}

}  // namespace merovane::library
