#include <windows.h>

#include <algorithm>
#include <mutex>

#include "byte_stream.h"
#include "win32/overlapped_transfer.h"

namespace cassorind {

namespace {

using Outcome = OverlappedTransfer::Outcome;

constexpr DWORD kQueueBytes = 64 * 1024;
constexpr std::size_t kWritePiece = 4096;
constexpr std::uint32_t kWaitingBytesLimitMs = 20;

class SerialPort final : public ByteStream {
 public:
  SerialPort(HANDLE device, std::uint32_t baudRate) : device_(device), baudRate_(baudRate) {}
  SerialPort(const SerialPort&) = delete;
  SerialPort& operator=(const SerialPort&) = delete;
  ~SerialPort() override { ::CloseHandle(device_); }

  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                    const companions::StopSignal& stop) override;
  std::size_t Write(std::span<const std::byte> data, const companions::StopSignal& stop) override;
  bool Clear() override { return ::PurgeComm(device_, PURGE_RXCLEAR) != 0; }

 private:
  // kDeviceGone when the device cannot be asked any more.
  std::int64_t WaitingBytes() {
    DWORD errors = 0;
    COMSTAT state{};
    if (!::ClearCommError(device_, &errors, &state)) return kDeviceGone;
    return state.cbInQue;
  }

  const HANDLE device_;
  const std::uint32_t baudRate_;
  std::mutex readMutex_;
  OverlappedTransfer reading_;
  OverlappedTransfer writing_;
};

// The driver's own time-outs are off, since systems differ in them. A read of one byte ends
// with that byte everywhere, and one of no more than what is waiting ends at once.
std::int32_t SerialPort::Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                              const companions::StopSignal& stop) {
  std::lock_guard lock(readMutex_);
  std::size_t count = 0;
  std::int64_t waiting = WaitingBytes();
  if (waiting == 0) {
    const auto first = reading_.Read(device_, buffer.first(1), timeLimitMs, stop);
    if (first.outcome == Outcome::TimeLimit || first.outcome == Outcome::Stopped) return 0;
    if (first.outcome == Outcome::Failed || first.bytes == 0) return kDeviceGone;
    count = first.bytes;
    waiting = WaitingBytes();
  }
  if (waiting < 0 && count == 0) return kDeviceGone;
  const auto rest = buffer.subspan(
      count, std::min<std::size_t>(buffer.size() - count,
                                   static_cast<std::size_t>(std::max<std::int64_t>(waiting, 0))));
  // They are there already, unless another thread clears them at this moment.
  if (!rest.empty()) count += reading_.Read(device_, rest, kWaitingBytesLimitMs, stop).bytes;
  return static_cast<std::int32_t>(count);
}

std::size_t SerialPort::Write(std::span<const std::byte> data, const companions::StopSignal& stop) {
  std::size_t written = 0;
  while (written < data.size() && !stop.IsSet()) {
    const auto piece = data.subspan(written, std::min(kWritePiece, data.size() - written));
    // A start bit, 8 data bits and a stop bit; the system may finish only when they are sent.
    const auto sendMs = static_cast<std::uint32_t>(piece.size() * 10 * 1000 / baudRate_);
    const auto result = writing_.Write(device_, piece, kWriteStallMs + sendMs, stop);
    written += result.bytes;
    if (result.outcome != Outcome::Done || result.bytes == 0) break;
  }
  return written;
}

// 8 data bits, no parity, 1 stop bit, nothing interpreted, no flow control.
bool SetUp(HANDLE device, std::uint32_t baudRate) {
  DCB settings{};
  settings.DCBlength = sizeof(settings);
  if (!::GetCommState(device, &settings)) return false;
  settings = {};
  settings.DCBlength = sizeof(settings);
  settings.BaudRate = baudRate;
  settings.fBinary = TRUE;
  settings.fDtrControl = DTR_CONTROL_ENABLE;
  settings.fRtsControl = RTS_CONTROL_ENABLE;
  settings.ByteSize = 8;
  settings.Parity = NOPARITY;
  settings.StopBits = ONESTOPBIT;
  COMMTIMEOUTS none{};
  ::SetupComm(device, kQueueBytes, kQueueBytes);
  return ::SetCommState(device, &settings) && ::SetCommTimeouts(device, &none) &&
         ::PurgeComm(device, PURGE_RXCLEAR);
}

}  // namespace

std::unique_ptr<ByteStream> OpenSerial(const SerialDevice& device, std::uint32_t baudRate) {
  if (baudRate == 0 || baudRate > kMaxBaudRate) return nullptr;
  const HANDLE handle = ::CreateFileA(device.name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return nullptr;
  if (!SetUp(handle, baudRate)) {
    ::CloseHandle(handle);
    return nullptr;
  }
  return std::make_unique<SerialPort>(handle, baudRate);
}

}  // namespace cassorind
