// Descriptors that close themselves, and what is done with them in more than one place.
#pragma once

#include <utility>

namespace merovane::platform {

class UniqueDescriptor {
 public:
  UniqueDescriptor() = default;
  explicit UniqueDescriptor(int value) : value_(value) {}
  UniqueDescriptor(UniqueDescriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
  UniqueDescriptor& operator=(UniqueDescriptor&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~UniqueDescriptor() { Close(); }

  int Get() const { return value_; }
  explicit operator bool() const { return value_ >= 0; }
  // False when the system tells only now that something was not written.
  bool Close();

 private:
  int value_ = -1;
};

}  // namespace merovane::platform
