#include "support/stop_signal.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <system_error>

namespace companions {

StopSignal::StopSignal() : handle_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (handle_ < 0) throw std::system_error(errno, std::generic_category());
}

StopSignal::~StopSignal() { ::close(static_cast<int>(handle_)); }

void StopSignal::Set() {
  set_.store(true, std::memory_order_release);
  ::eventfd_write(static_cast<int>(handle_), 1);
}

bool StopSignal::WaitMs(std::uint32_t ms) const {
  pollfd signal{static_cast<int>(handle_), POLLIN, 0};
  ::poll(&signal, 1, static_cast<int>(std::min<std::uint32_t>(ms, INT_MAX)));
  return IsSet();
}

}  // namespace companions
