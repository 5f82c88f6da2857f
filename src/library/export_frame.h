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

// The operation's result; one that ran out of memory could not make its request.
template <typename Operation>
Result Guarded(Operation&& operation) noexcept {
  try {
    return std::forward<Operation>(operation)();
  } catch (...) {
    return Result::EncodeFailed;
  }
}

// What one export does on its object, called once while it stands. A reference rather than a
// template's parameter: the frame is there once, and not in each of the exports.
class Body {
 public:
  template <typename Operation>
  explicit Body(Operation& operation)
      : operation_(&operation), run_([](void* held, PhoneObject& phone) {
          return (*static_cast<Operation*>(held))(phone);
        }) {}
  Result operator()(PhoneObject& phone) const { return run_(operation_, phone); }

 private:
  void* operation_;
  Result (*run_)(void* held, PhoneObject& phone);
};

std::int32_t RunOnDefaultPhone(Body command) noexcept;
std::int32_t RunOnPhone(std::int32_t port, Body command) noexcept;
// `operation` gets the object for its NV project.
std::int32_t RunOnDefaultProject(std::uint32_t id, Body operation) noexcept;
std::int32_t RunOnProjectOf(std::int32_t port, std::uint32_t id, Body operation) noexcept;

template <typename Command>
std::int32_t OnDefaultPhone(Command command) noexcept {
  return RunOnDefaultPhone(Body(command));
}

template <typename Command>
std::int32_t OnPhone(std::int32_t port, Command command) noexcept {
  return RunOnPhone(port, Body(command));
}

template <typename Operation>
std::int32_t OnDefaultProject(std::uint32_t id, Operation operation) noexcept {
  return RunOnDefaultProject(id, Body(operation));
}

template <typename Operation>
std::int32_t OnProjectOf(std::int32_t port, std::uint32_t id, Operation operation) noexcept {
  return RunOnProjectOf(port, id, Body(operation));
}

inline std::int32_t Reported(Result result) {
  return static_cast<std::int32_t>(TheLibrary().environment.errors.Report(result));
}

// No command ran: the result is reported under no operation.
inline std::int32_t ReportedUnreached(Result result) {
  TheLibrary().environment.errors.ClearReport();
  return Reported(result);
}

inline nvproject::ImageContext ImageContextNow() {
  return {TheLibrary().environment.settings.Order(), platform::SystemClock().NowMs()};
}

// For what a project function has to say. Commands may run meanwhile.
inline nvproject::LogLine UsefulLogOf(PhoneObject& phone) {
  return [&phone](std::string_view line) { phone.link.LogLine(line); };
}

}  // namespace merovane::library
