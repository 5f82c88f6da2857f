#include "platform/files.h"

#include <utility>

namespace merovane::platform {

AppendFile::~AppendFile() { Close(); }

AppendFile::AppendFile(AppendFile&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}

AppendFile& AppendFile::operator=(AppendFile&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

bool CanMakeFilesIn(std::filesystem::path folder) {
  std::error_code error;
  while (!std::filesystem::exists(folder, error) && folder.has_relative_path()) {
    folder = folder.parent_path();
  }
  const std::filesystem::path tried = folder / ".merovane-can-write";
  AppendFile file;
  const bool made = std::filesystem::is_directory(folder, error) && file.Open(tried);
  file.Close();
  std::filesystem::remove(tried, error);
  return made;
}

}  // namespace merovane::platform
