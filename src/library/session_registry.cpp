#include "library/session_registry.h"

#include <utility>

namespace merovane::library {

SessionRegistry::PhonePointer SessionRegistry::Find(std::int32_t port, Result& failure) const {
  if (port < 1) {
    failure = Result::InvalidParam;
    return nullptr;
  }
  const platform::MutexLock lock(mutex_);
  const auto found = phones_.find(port);
  failure = found == phones_.end() ? Result::PortNotOpen : Result::Success;
  return found == phones_.end() ? nullptr : found->second;
}

SessionRegistry::PhonePointer SessionRegistry::Default() const {
  const platform::MutexLock lock(mutex_);
  return default_;
}

bool SessionRegistry::Enter(std::int32_t port, const PhonePointer& phone) {
  const platform::MutexLock lock(mutex_);
  return phones_.emplace(port, phone).second;
}

void SessionRegistry::MakeDefault(std::int32_t port) {
  const platform::MutexLock lock(mutex_);
  if (const auto found = phones_.find(port); found != phones_.end()) default_ = found->second;
}

SessionRegistry::PhonePointer SessionRegistry::Remove(std::int32_t port) {
  const platform::MutexLock lock(mutex_);
  const auto found = phones_.find(port);
  if (found == phones_.end()) return nullptr;
  PhonePointer phone = std::move(found->second);
  phones_.erase(found);
  if (default_ == phone) default_.reset();
  return phone;
}

void SessionRegistry::Remove(std::int32_t port, const PhonePointer& phone) {
  const platform::MutexLock lock(mutex_);
  const auto found = phones_.find(port);
  if (found != phones_.end() && found->second == phone) phones_.erase(found);
}

std::vector<SessionRegistry::PhonePointer> SessionRegistry::RemoveAll() {
  const platform::MutexLock lock(mutex_);
  std::vector<PhonePointer> phones;
  for (auto& entry : phones_) phones.push_back(std::move(entry.second));
  phones_.clear();
  default_.reset();
  return phones;
}

SessionRegistry::PhonePointer SessionRegistry::PortWaiting() const {
  const platform::MutexLock lock(mutex_);
  return portWaiting_;
}

}  // namespace merovane::library
