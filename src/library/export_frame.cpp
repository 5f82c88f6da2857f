#include "library/export_frame.h"

namespace merovane::library {
namespace {

std::int32_t RunCommand(PhoneObject& phone, Body command) noexcept {
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

std::int32_t RunProject(PhoneObject& phone, std::uint32_t id, Body operation) noexcept {
  const Turn turn(phone.projectTurns);
  if (!turn) return ReportedUnreached(Result::PortNotOpen);
  TheLibrary().environment.errors.BeginOperation(id);
  return Reported(Guarded([&] { return operation(phone); }));
}

template <typename Run>
std::int32_t OnDefaultObject(const Run& run) noexcept {
  const auto phone = TheLibrary().registry.Default();
  if (!phone) return ReportedUnreached(Result::PortNotOpen);
  Call::Reached(phone->link.Port());
  return run(*phone);
}

template <typename Run>
std::int32_t OnObjectOf(std::int32_t port, const Run& run) noexcept {
  Result failure = Result::Success;
  const auto phone = TheLibrary().registry.Find(port, failure);
  return phone ? run(*phone) : ReportedUnreached(failure);
}

}  // namespace

std::int32_t RunOnDefaultPhone(Body command) noexcept {
  return OnDefaultObject([&](PhoneObject& phone) { return RunCommand(phone, command); });
}

std::int32_t RunOnPhone(std::int32_t port, Body command) noexcept {
  return OnObjectOf(port, [&](PhoneObject& phone) { return RunCommand(phone, command); });
}

std::int32_t RunOnDefaultProject(std::uint32_t id, Body operation) noexcept {
  return OnDefaultObject([&](PhoneObject& phone) { return RunProject(phone, id, operation); });
}

std::int32_t RunOnProjectOf(std::int32_t port, std::uint32_t id, Body operation) noexcept {
  return OnObjectOf(port, [&](PhoneObject& phone) { return RunProject(phone, id, operation); });
}

}  // namespace merovane::library
