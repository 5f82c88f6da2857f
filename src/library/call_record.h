// All that is told of a call, copied from its caller's memory.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "library/call.h"
#include "library/failure.h"
#include "link/exchange.h"
#include "merovane/diagnostics.h"
#include "platform/clock.h"

namespace merovane::library {

struct CallRecord {
  struct Argument {
    std::uintptr_t word = 0;
    bool followed = false;  // where the pointer leads was looked at
    // There; of these, what was copied stands in `copies`.
    std::uint64_t wholeBytes = 0;
    std::uint32_t copyAt = 0;
    std::uint32_t copiedBytes = 0;
  };

  // Of the result; payloads are copied where `trace` wants them.
  void CopyArguments(const std::uintptr_t* words);
  // About what it takes in memory.
  std::size_t Bytes() const;

  const ExportInfo* info = nullptr;
  std::int32_t port = 0;
  std::uint32_t thread = 0;
  platform::CalendarTime returned{};
  Exchange::Clock::time_point begun;
  Exchange::Clock::time_point ended;
  std::int32_t result = 0;
  Merovane_Trace trace = MEROVANE_TRACE_OFF;  // when the call returned
  std::array<Argument, kMostArguments> arguments{};
  std::string copies;
  ExchangeList exchanges;
  std::optional<FailedCall> failure;
};

}  // namespace merovane::library
