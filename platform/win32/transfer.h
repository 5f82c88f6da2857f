// One read or write at a time on an overlapped handle, with a time limit and a stop event.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/event.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {

class OverlappedTransfer {
 public:
  enum class Outcome { Done, TimeLimit, Stopped, Failed };
  struct Result {
    Outcome outcome;
    std::uint32_t bytes;  // taken or given, whatever the outcome
  };

  OverlappedTransfer();

  Result Read(HANDLE device, std::span<std::byte> buffer, std::uint32_t timeLimitMs,
              const Event& stop);
  Result Write(HANDLE device, std::span<const std::byte> data, std::uint32_t timeLimitMs,
               const Event& stop);
  // Any other transfer: `start` hands the structure to the system, and says whether that took it
  // without an error; else the thread's last error stands.
  template <class Start>
  Result Run(HANDLE device, Start&& start, std::uint32_t timeLimitMs, const Event& stop) {
    return Finish(device, start(overlapped_), timeLimitMs, stop);
  }

 private:
  Result Finish(HANDLE device, bool started, std::uint32_t timeLimitMs, const Event& stop);

  UniqueHandle event_;
  OVERLAPPED overlapped_{};
};

}  // namespace merovane::platform
