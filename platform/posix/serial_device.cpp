// The kernel's own terminal settings take any rate as a number; the C library's
// know only a list. Their headers cannot be used together.
#include <asm/termbits.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "platform/posix/transfer.h"

namespace merovane::platform {
namespace {

class SerialPort final : public DescriptorStream {
 public:
  using DescriptorStream::DescriptorStream;
  ~SerialPort() override {
    // Would outlast this open while another process keeps the device open.
    ioctl(Get(), TIOCNXCL);
  }
  bool Clear() override { return ioctl(Get(), TCFLSH, TCIFLUSH) == 0; }

 private:
  std::ptrdiff_t WriteSome(std::span<const std::byte> data) override {
    return write(Get(), data.data(), data.size());
  }
};

// 8 data bits, no parity, 1 stop bit, nothing interpreted, no flow control.
bool SetUp(int descriptor, std::uint32_t baudRate) {
  termios2 settings{};
  if (ioctl(descriptor, TCGETS2, &settings) != 0) return false;
  settings.c_iflag = 0;
  settings.c_oflag = 0;
  settings.c_lflag = 0;
  settings.c_cflag &=
      ~static_cast<tcflag_t>(CSIZE | PARENB | CSTOPB | CRTSCTS | CBAUD | (CBAUD << IBSHIFT));
  settings.c_cflag |= CS8 | CREAD | CLOCAL | BOTHER;
  settings.c_cc[VMIN] = 1;
  settings.c_cc[VTIME] = 0;
  settings.c_ispeed = baudRate;
  settings.c_ospeed = baudRate;
  if (ioctl(descriptor, TCSETS2, &settings) != 0) return false;

  // A driver that cannot do the rate says so only by what it set instead.
  termios2 granted{};
  if (ioctl(descriptor, TCGETS2, &granted) != 0) return false;
  const std::uint32_t tolerance = baudRate / 32;
  return granted.c_ospeed >= baudRate - tolerance && granted.c_ospeed <= baudRate + tolerance;
}

}  // namespace

std::unique_ptr<ByteStream> OpenSerialDevice(const std::string& name, std::uint32_t baudRate) {
  if (baudRate == 0 || baudRate > kMaxBaudRate) return nullptr;
  UniqueDescriptor descriptor(open(name.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  if (!descriptor) return nullptr;
  // The lock keeps out a second channel even with rights that pass exclusive mode.
  if (flock(descriptor.Get(), LOCK_EX | LOCK_NB) != 0) return nullptr;
  if (!SetUp(descriptor.Get(), baudRate)) return nullptr;
  ioctl(descriptor.Get(), TIOCEXCL);
  ioctl(descriptor.Get(), TCFLSH, TCIFLUSH);
  return std::make_unique<SerialPort>(std::move(descriptor));
}

}  // namespace merovane::platform
