#include "library/session_registry.h"

#include <utility>

namespace merovane::library {

SessionRegistry::PhonePointer SessionRegistry::Find(std::int32_t port, Result& failure) const {
  if (port < 1) {
    failure = Result::InvalidParam;
    return nullptr;
  }
  const std::lock_guard lock(mutex_);
  const auto found = phones_.find(port);
  failure = found == phones_.end() ? Result::PortNotOpen : Result::Success;
  return found == phones_.end() ? nullptr : found->second;
}

SessionRegistry::PhonePointer SessionRegistry::Default() const {
  const std::lock_guard lock(mutex_);
  return default_;
}

void SessionRegistry::Enter(std::int32_t port, PhonePointer phone) {
  const std::lock_guard lock(mutex_);
  phones_[port] = std::move(phone);
}

void SessionRegistry::MakeDefault(std::int32_t port) {
  const std::lock_guard lock(mutex_);
  if (const auto found = phones_.find(port); found != phones_.end()) default_ = found->second;
}

SessionRegistry::PhonePointer SessionRegistry::Remove(std::int32_t port) {
  const std::lock_guard lock(mutex_);
  const auto found = phones_.find(port);
  if (found == phones_.end()) return nullptr;
  PhonePointer phone = std::move(found->second);
  phones_.erase(found);
  if (default_ == phone) default_.reset();
  return phone;
}

std::vector<SessionRegistry::PhonePointer> SessionRegistry::RemoveAll() {
  const std::lock_guard lock(mutex_);
  std::vector<PhonePointer> phones;
  for (auto& entry : phones_) phones.push_back(std::move(entry.second));
  phones_.clear();
  default_.reset();
  return phones;
}

SessionRegistry::PhonePointer SessionRegistry::PortWaiting() const {
  const std::lock_guard lock(mutex_);
  return portWaiting_;
}

}  // namespace merovane::library
