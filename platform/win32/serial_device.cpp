// Serial ports by overlapped transfers.
#include <algorithm>
#include <utility>

#include "platform/byte_stream.h"
#include "platform/mutex.h"
#include "platform/win32/transfer.h"

namespace merovane::platform {
namespace {

using Outcome = OverlappedTransfer::Outcome;
using Why = OpenTrouble::Why;

constexpr DWORD kQueueBytes = 64 * 1024;
constexpr std::size_t kWritePiece = 4096;
constexpr std::uint32_t kWaitingBytesLimitMs = 20;

class SerialPort final : public ByteStream {
 public:
  SerialPort(UniqueHandle device, std::uint32_t baudRate)
      : device_(std::move(device)), baudRate_(baudRate) {}

  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                    const Event& stop) override;
  std::size_t Write(std::span<const std::byte> data, const Event& stop) override;
  bool Clear() override { return PurgeComm(device_.get(), PURGE_RXCLEAR) != 0; }

 private:
  // kDeviceGone when the device cannot be asked any more.
  std::int64_t WaitingBytes() {
    DWORD errors = 0;
    COMSTAT state{};
    if (!ClearCommError(device_.get(), &errors, &state)) return kDeviceGone;
    return state.cbInQue;
  }

  const UniqueHandle device_;
  const std::uint32_t baudRate_;
  Mutex readMutex_;
  OverlappedTransfer reading_ MEROVANE_GUARDED_BY(readMutex_);
  OverlappedTransfer writing_;
};

// The driver's own time-outs are off, since systems differ in them. A read of one byte ends
// with that byte everywhere, and one of no more than what is waiting ends at once.
std::int32_t SerialPort::Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                              const Event& stop) {
  const MutexLock lock(readMutex_);
  std::size_t count = 0;
  std::int64_t waiting = WaitingBytes();
  if (waiting == 0) {
    const auto first = reading_.Read(device_.get(), buffer.first(1), timeLimitMs, stop);
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
  if (!rest.empty()) count += reading_.Read(device_.get(), rest, kWaitingBytesLimitMs, stop).bytes;
  return static_cast<std::int32_t>(count);
}

std::size_t SerialPort::Write(std::span<const std::byte> data, const Event& stop) {
  std::size_t written = 0;
  while (written < data.size() && !stop.IsSet()) {
    const auto piece = data.subspan(written, std::min(kWritePiece, data.size() - written));
    // A start bit, 8 data bits and a stop bit; the system may finish only when they are sent.
    const auto sendMs = static_cast<std::uint32_t>(piece.size() * 10 * 1000 / baudRate_);
    const auto result = writing_.Write(device_.get(), piece, kWriteStallMs + sendMs, stop);
    written += result.bytes;
    if (result.outcome != Outcome::Done || result.bytes == 0) break;
  }
  return written;
}

// 8 data bits, no parity, 1 stop bit, nothing interpreted, no flow control.
OpenTrouble SetUp(HANDLE device, std::uint32_t baudRate) {
  const auto failed = [](Why why) {
    return OpenTrouble{why, static_cast<std::int32_t>(GetLastError())};
  };
  DCB settings{};
  settings.DCBlength = sizeof(settings);
  if (!GetCommState(device, &settings)) return failed(Why::NoSerialDevice);
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
  SetupComm(device, kQueueBytes, kQueueBytes);
  if (!SetCommState(device, &settings)) return failed(Why::RateRefused);
  const bool ready = SetCommTimeouts(device, &none) && PurgeComm(device, PURGE_RXCLEAR);
  return ready ? OpenTrouble{} : failed(Why::Other);
}

OpenTrouble NotOpened(DWORD error) {
  const auto number = static_cast<std::int32_t>(error);
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
      return {Why::NoDevice, number};
    // Windows says so of a port that another program has.
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
      return {Why::Taken, number};
    default:
      return {Why::Other, number};
  }
}

}  // namespace

std::unique_ptr<ByteStream> OpenSerialDevice(const std::string& name, std::uint32_t baudRate,
                                             OpenTrouble& trouble) {
  trouble = {Why::RateRefused, 0};
  if (baudRate == 0 || baudRate > kMaxBaudRate) return nullptr;
  // The device name space, without which names above COM9 are not found.
  const std::string path = name.starts_with(R"(\\)") ? name : R"(\\.\)" + name;
  UniqueHandle device =
      FileHandle(CreateFileW(WideFromNarrow(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                             OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr));
  if (!device) {
    trouble = NotOpened(GetLastError());
    return nullptr;
  }
  trouble = SetUp(device.get(), baudRate);
  if (trouble.why != Why::None) return nullptr;
  return std::make_unique<SerialPort>(std::move(device), baudRate);
}

}  // namespace merovane::platform
