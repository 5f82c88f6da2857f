// One read or write at a time on an overlapped handle, with a time limit and a stop signal.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <span>

#include "support/stop_signal.h"

namespace cassorind {

class OverlappedTransfer {
 public:
  enum class Outcome { Done, TimeLimit, Stopped, Failed };
  struct Result {
    Outcome outcome;
    std::uint32_t bytes;  // taken or given, whatever the outcome
  };

  OverlappedTransfer();
  ~OverlappedTransfer();
  OverlappedTransfer(const OverlappedTransfer&) = delete;
  OverlappedTransfer& operator=(const OverlappedTransfer&) = delete;

  Result Read(HANDLE device, std::span<std::byte> buffer, std::uint32_t timeLimitMs,
              const companions::StopSignal& stop);
  Result Write(HANDLE device, std::span<const std::byte> data, std::uint32_t timeLimitMs,
               const companions::StopSignal& stop);

 private:
  Result Finish(HANDLE device, bool started, std::uint32_t timeLimitMs,
                const companions::StopSignal& stop);

  OVERLAPPED overlapped_{};
};

}  // namespace cassorind
