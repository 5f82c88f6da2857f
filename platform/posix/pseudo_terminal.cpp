#include "platform/pseudo_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/posix/posix_api.h"

namespace merovane::platform {
namespace {

// The other end, held only while something is done to it: an end that is always held would hide
// whether another program has it open.
UniqueDescriptor OpenOtherEnd(const std::string& device) {
  return UniqueDescriptor(open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
}

bool MakeRaw(const std::string& device) {
  const UniqueDescriptor end = OpenOtherEnd(device);
  termios settings{};
  if (!end || tcgetattr(end.Get(), &settings) != 0) return false;
  cfmakeraw(&settings);
  settings.c_cflag |= CLOCAL | CREAD;
  cfsetspeed(&settings, B115200);
  return tcsetattr(end.Get(), TCSANOW, &settings) == 0;
}

class Terminal final : public PseudoTerminal {
 public:
  Terminal(UniqueDescriptor ourEnd, std::string device)
      : ourEnd_(std::move(ourEnd)), device_(std::move(device)) {}

  const std::string& DeviceName() const override { return device_; }
  std::intptr_t Handle() const override { return ourEnd_.Get(); }

  OtherEnd Look() const override {
    pollfd state{ourEnd_.Get(), POLLIN, 0};
    poll(&state, 1, 0);
    return {(state.revents & POLLHUP) == 0, (state.revents & POLLIN) != 0};
  }

  std::size_t Unread() const override {
    const UniqueDescriptor end = OpenOtherEnd(device_);
    int count = 0;
    if (!end || ioctl(end.Get(), FIONREAD, &count) != 0) return 0;
    return static_cast<std::size_t>(count);
  }

  bool DropUnread() override {
    const UniqueDescriptor end = OpenOtherEnd(device_);
    if (end) tcflush(end.Get(), TCIFLUSH);
    return static_cast<bool>(end);
  }

 private:
  UniqueDescriptor ourEnd_;
  std::string device_;
};

}  // namespace

std::unique_ptr<PseudoTerminal> MakePseudoTerminal(std::string& whyNot) {
  const auto failed = [&whyNot](const char* step) {
    whyNot = std::string(step) + ": " + std::generic_category().message(errno);
    return nullptr;
  };
  UniqueDescriptor end(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!end) return failed("open");
  if (grantpt(end.Get()) != 0 || unlockpt(end.Get()) != 0) return failed("unlock");
  std::array<char, 64> name{};
  if (ptsname_r(end.Get(), name.data(), name.size()) != 0) return failed("name");
  if (!MakeRaw(name.data())) return failed("set raw");
  return std::make_unique<Terminal>(std::move(end), name.data());
}

}  // namespace merovane::platform
