// The kernel's own terminal settings take any rate as a number; the C library's
// know only a list. Their headers cannot be used together.
#include <asm/termbits.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/transfer.h"

namespace merovane::platform {
namespace {

using Why = OpenTrouble::Why;

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
OpenTrouble SetUp(int descriptor, std::uint32_t baudRate) {
  const OpenTrouble noTerminal{Why::NoSerialDevice, ENOTTY};
  termios2 settings{};
  if (ioctl(descriptor, TCGETS2, &settings) != 0) return noTerminal;
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
  if (ioctl(descriptor, TCSETS2, &settings) != 0) return {Why::RateRefused, errno};

  // A driver that cannot do the rate says so only by what it set instead.
  termios2 granted{};
  if (ioctl(descriptor, TCGETS2, &granted) != 0) return noTerminal;
  const std::uint32_t tolerance = baudRate / 32;
  const bool close =
      granted.c_ospeed >= baudRate - tolerance && granted.c_ospeed <= baudRate + tolerance;
  return close ? OpenTrouble{} : OpenTrouble{Why::RateRefused, 0};
}

OpenTrouble NotOpened(int error) {
  switch (error) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
      return {Why::NoDevice, error};
    case EBUSY:
    case EWOULDBLOCK:
      return {Why::Taken, error};
    case EACCES:
    case EPERM:
      return {Why::Denied, error};
    case EISDIR:
      return {Why::NoSerialDevice, error};
    default:
      return {Why::Other, error};
  }
}

bool IsPipe(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISFIFO(status.st_mode);
}

}  // namespace

std::unique_ptr<ByteStream> OpenSerialDevice(const std::string& name, std::uint32_t baudRate,
                                             OpenTrouble& trouble) {
  trouble = {Why::RateRefused, 0};
  if (baudRate == 0 || baudRate > kMaxBaudRate) return nullptr;
  UniqueDescriptor descriptor(open(name.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  trouble = descriptor ? OpenTrouble{} : NotOpened(errno);
  if (!descriptor) return nullptr;
  trouble = {Why::Pipe, 0};
  if (IsPipe(descriptor.Get())) return nullptr;
  // The lock keeps out a second channel even with rights that pass exclusive mode.
  if (flock(descriptor.Get(), LOCK_EX | LOCK_NB) != 0) {
    trouble = NotOpened(errno);
    return nullptr;
  }
  trouble = SetUp(descriptor.Get(), baudRate);
  if (trouble.why != Why::None) return nullptr;
  ioctl(descriptor.Get(), TIOCEXCL);
  ioctl(descriptor.Get(), TCFLSH, TCIFLUSH);
  return std::make_unique<SerialPort>(std::move(descriptor));
}

}  // namespace merovane::platform
