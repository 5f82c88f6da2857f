#include "platform/device_handle.h"

#include <fcntl.h>
#include <sys/ioctl.h>

namespace merovane::platform {

std::intptr_t SecondHandle(std::intptr_t device) {
  return fcntl(static_cast<int>(device), F_DUPFD_CLOEXEC, 0);
}

std::size_t UnsentBytes(std::intptr_t device) {
  int count = 0;
  if (ioctl(static_cast<int>(device), TIOCOUTQ, &count) != 0) return 0;
  return static_cast<std::size_t>(count);
}

}  // namespace merovane::platform
