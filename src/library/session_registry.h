// The phone objects of this process, by port number, and the default one.
#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "library/phone_object.h"
#include "link/result.h"
#include "platform/mutex.h"

namespace merovane::library {

class SessionRegistry {
 public:
  using PhonePointer = std::shared_ptr<PhoneObject>;

  // The object of a port; null, and 4 or 1 in `failure`, for a port below 1 or without one.
  PhonePointer Find(std::int32_t port, Result& failure) const;
  PhonePointer Default() const;

  // False when the port has an object already.
  bool Enter(std::int32_t port, const PhonePointer& phone);
  // The object of this port, if there is one, becomes the default one.
  void MakeDefault(std::int32_t port);
  // Takes the object out; it is null when there is none. A default object ends with its port.
  PhonePointer Remove(std::int32_t port);
  // Takes this one out, unless another has taken its place.
  void Remove(std::int32_t port, const PhonePointer& phone);
  // Takes all out, and forgets the default object.
  std::vector<PhonePointer> RemoveAll();

  // The object that waits for a new port; its own, made when first asked for.
  template <typename Make>
  PhonePointer PortWaiting(Make&& make) {
    const platform::MutexLock lock(mutex_);
    if (!portWaiting_) portWaiting_ = make();
    return portWaiting_;
  }
  PhonePointer PortWaiting() const;

  // Goes into the sequence field of the first frame after each mode process start.
  std::atomic<std::uint32_t> nextSequence = 0;
  // Whether the last mode process of the default forms waits for a port.
  std::atomic<bool> lastWaitedForPort = false;

 private:
  mutable platform::Mutex mutex_;
  std::map<std::int32_t, PhonePointer> phones_ MEROVANE_GUARDED_BY(mutex_);
  PhonePointer default_ MEROVANE_GUARDED_BY(mutex_);
  PhonePointer portWaiting_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane::library
