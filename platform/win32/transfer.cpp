#include "platform/win32/transfer.h"

#include <array>
#include <system_error>

namespace merovane::platform {

OverlappedTransfer::OverlappedTransfer() : event_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  if (!event_) throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
  overlapped_.hEvent = event_.get();
}

OverlappedTransfer::Result OverlappedTransfer::Read(HANDLE device, std::span<std::byte> buffer,
                                                    std::uint32_t timeLimitMs, const Event& stop) {
  const bool started = ReadFile(device, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr,
                                &overlapped_) != 0;
  return Finish(device, started, timeLimitMs, stop);
}

OverlappedTransfer::Result OverlappedTransfer::Write(HANDLE device, std::span<const std::byte> data,
                                                     std::uint32_t timeLimitMs, const Event& stop) {
  const bool started =
      WriteFile(device, data.data(), static_cast<DWORD>(data.size()), nullptr, &overlapped_) != 0;
  return Finish(device, started, timeLimitMs, stop);
}

OverlappedTransfer::Result OverlappedTransfer::Finish(HANDLE device, bool started,
                                                      std::uint32_t timeLimitMs,
                                                      const Event& stop) {
  Outcome unfinished = Outcome::Failed;
  if (!started) {
    if (GetLastError() != ERROR_IO_PENDING) return {Outcome::Failed, 0};
    const std::array<HANDLE, 2> waited{overlapped_.hEvent, reinterpret_cast<HANDLE>(stop.Handle())};
    const DWORD woken = WaitForMultipleObjects(static_cast<DWORD>(waited.size()), waited.data(),
                                               FALSE, timeLimitMs);
    if (woken != WAIT_OBJECT_0) {
      unfinished = woken == WAIT_TIMEOUT ? Outcome::TimeLimit : Outcome::Stopped;
      CancelIoEx(device, &overlapped_);
    }
  }
  // After a cancel too: the transfer may have been quicker, and the system
  // uses buffer and structure until it says so.
  DWORD bytes = 0;
  const bool done = GetOverlappedResult(device, &overlapped_, &bytes, TRUE) != 0;
  if (done) return {Outcome::Done, bytes};
  return {unfinished, unfinished == Outcome::Failed ? 0 : bytes};
}

}  // namespace merovane::platform
