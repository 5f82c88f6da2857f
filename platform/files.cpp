#include "platform/files.h"

#include <utility>

namespace merovane::platform {

AppendFile::~AppendFile() { Close(); }

AppendFile::AppendFile(AppendFile&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}

AppendFile& AppendFile::operator=(AppendFile&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

}  // namespace merovane::platform
