#include "platform/posix/transfer.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>

namespace merovane::platform {
namespace {

using SteadyClock = std::chrono::steady_clock;

enum class Wake { Ready, Stopped, TimeLimit, Hangup };

SteadyClock::time_point In(std::uint32_t ms) {
  return SteadyClock::now() + std::chrono::milliseconds(ms);
}

// Waits for the descriptor or the signal. Hangup only when there is nothing besides it.
Wake WaitFor(int descriptor, short events, SteadyClock::time_point deadline, const Event& stop) {
  std::array<pollfd, 2> polled{
      {{descriptor, events, 0}, {static_cast<int>(stop.Handle()), POLLIN, 0}}};
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now());
    const auto limitMs = static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, INT_MAX));
    const int count = poll(polled.data(), polled.size(), limitMs);
    if (count > 0) break;
    if (count == 0 && SteadyClock::now() >= deadline) return Wake::TimeLimit;
    if (count < 0 && errno != EINTR) return Wake::Hangup;
  }
  if (polled[1].revents != 0) return Wake::Stopped;
  return (polled[0].revents & events) != 0 ? Wake::Ready : Wake::Hangup;
}

}  // namespace

std::int32_t DescriptorStream::Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                                    const Event& stop) {
  const auto deadline = In(timeLimitMs);
  for (;;) {
    const Wake wake = WaitFor(Get(), POLLIN, deadline, stop);
    if (wake == Wake::Stopped || wake == Wake::TimeLimit) return 0;
    // Tried after a hang-up too: what arrived before it may still be there.
    const ssize_t count = read(Get(), buffer.data(), buffer.size());
    if (count > 0) return static_cast<std::int32_t>(count);
    // Another thread may have cleared what was there.
    const bool again = count < 0 && (errno == EINTR || (errno == EAGAIN && wake == Wake::Ready));
    if (!again) return kDeviceGone;
  }
}

std::size_t DescriptorStream::Write(std::span<const std::byte> data, const Event& stop) {
  std::size_t written = 0;
  auto stalledAt = SteadyClock::time_point::max();  // asked for only when the device makes us wait
  while (written < data.size() && !stop.IsSet()) {
    const ssize_t count = WriteSome(data.subspan(written));
    if (count > 0) {
      written += static_cast<std::size_t>(count);
      stalledAt = SteadyClock::time_point::max();
      continue;
    }
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && errno != EAGAIN) break;
    if (stalledAt == SteadyClock::time_point::max()) stalledAt = In(kWriteStallMs);
    if (WaitFor(Get(), POLLOUT, stalledAt, stop) != Wake::Ready || SteadyClock::now() >= stalledAt)
      break;
  }
  return written;
}

}  // namespace merovane::platform
