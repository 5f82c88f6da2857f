// A caller's event, as stations hand them in. Only where there are event descriptors.
#pragma once

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <chrono>

namespace merovane::test {

class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  ~Event() { ::close(descriptor_); }
  int Handle() const { return descriptor_; }
  bool IsSet(std::chrono::milliseconds patience = {}) const {
    pollfd polled{descriptor_, POLLIN, 0};
    if (::poll(&polled, 1, static_cast<int>(patience.count())) != 1) return false;
    // A read tells ThreadSanitizer what a poll does not: that this comes after the set.
    eventfd_t value = 0;
    ::eventfd_read(descriptor_, &value);
    ::eventfd_write(descriptor_, value);
    return true;
  }

 private:
  const int descriptor_ = ::eventfd(0, EFD_CLOEXEC);
};

}  // namespace merovane::test
