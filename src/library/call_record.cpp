#include "library/call_record.h"

#include <algorithm>
#include <cstring>

namespace merovane::library {
namespace {

using Kind = ArgumentInfo::Kind;
using Use = ArgumentInfo::Use;
using Argument = CallRecord::Argument;

constexpr std::uint64_t kMostTextBytes = 1024;
constexpr std::uint64_t kMostPayloadBytes = 65536;

// Whether the checks of the arguments let them pass: only then may pointers be followed. With these
// results a call may have ended before them, or by them.
bool ArgumentsPassed(const CallRecord& record) {
  if (record.info->returns != ExportInfo::Returns::Result) return true;
  switch (static_cast<Result>(record.result)) {
    case Result::PortNotOpen:
    case Result::InvalidParam:
    case Result::NvProjectNotOpen:
    case Result::EncodeFailed:
    case Result::CannotOpenPort:
    case Result::PortAlreadyOpened:
    case Result::NotSupported:
      return false;
    default:
      return true;
  }
}

void Copy(CallRecord& record, Argument& argument, const void* from, std::uint64_t bytes) {
  argument.copyAt = static_cast<std::uint32_t>(record.copies.size());
  argument.copiedBytes = static_cast<std::uint32_t>(bytes);
  record.copies.append(static_cast<const char*>(from), static_cast<std::size_t>(bytes));
}

const void* Pointer(std::uintptr_t word) {
  return reinterpret_cast<const void*>(word);  // NOLINT(performance-no-int-to-ptr): it was one
}

// How many of the elements arrived, as the call told its caller.
std::uint64_t Stored(const ArgumentInfo& info, const std::uintptr_t* words, std::uint64_t room) {
  const void* const told = info.stored >= 0 ? Pointer(words[info.stored]) : nullptr;
  if (!told) return room;
  std::uint32_t stored = 0;
  std::memcpy(&stored, told, sizeof stored);
  return std::min<std::uint64_t>(room, stored);
}

void Follow(CallRecord& record, const ArgumentInfo& info, Argument& argument,
            const std::uintptr_t* words) {
  const void* const at = Pointer(argument.word);
  if (info.kind == Kind::Text) {
    const auto* text = static_cast<const char*>(at);
    argument.followed = true;
    argument.wholeBytes = std::strlen(text);
    Copy(record, argument, text, std::min(argument.wholeBytes, kMostTextBytes));
    return;
  }
  // An argument that is not used in this case may lead anywhere, one that was to be filled is as it
  // was unless the call succeeded.
  const std::uint64_t count = info.count ? info.count(words) : 1;
  if (count == 0 || (info.use != Use::In && record.result != 0)) return;
  argument.followed = true;
  const bool filled = info.use != Use::In && info.kind != Kind::Room;
  argument.wholeBytes = (filled ? Stored(info, words, count) : count) * info.elementBytes;
  const bool wanted = info.kind == Kind::Number ||
                      (info.kind != Kind::Room && record.trace == MEROVANE_TRACE_PAYLOADS);
  if (wanted) Copy(record, argument, at, std::min(argument.wholeBytes, kMostPayloadBytes));
}

}  // namespace

void CallRecord::CopyArguments(const std::uintptr_t* words) {
  const bool passed = ArgumentsPassed(*this);
  for (std::size_t i = 0; i < info->arguments.size(); ++i) {
    const ArgumentInfo& argumentInfo = info->arguments[i];
    arguments[i].word = words[i];
    const bool pointer = argumentInfo.use != Use::Value && words[i] != 0;
    if (pointer && passed) Follow(*this, argumentInfo, arguments[i], words);
  }
}

std::size_t CallRecord::Bytes() const {
  return sizeof *this + copies.capacity() + exchanges.All().capacity() * sizeof(Exchange);
}

}  // namespace merovane::library
