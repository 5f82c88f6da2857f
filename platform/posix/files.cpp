// Files by descriptors, and read-only by their permission bits.
#include "platform/files.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace merovane::platform {

std::filesystem::path ExecutableDirectory() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::filesystem::path TemporaryDirectory() {
  std::error_code error;
  std::filesystem::path directory = std::filesystem::temp_directory_path(error);
  return error ? "/tmp" : directory;
}

std::filesystem::path MakeTemporaryDirectory(const std::string& prefix) {
  std::string path = (TemporaryDirectory() / (prefix + "XXXXXX")).string();
  if (mkdtemp(path.data()) == nullptr) return {};
  return path;
}

std::filesystem::path PathFromText(std::string_view text) {
  std::string path(text);
  std::ranges::replace(path, '\\', '/');
  return path;
}

bool IsAbsolutePath(std::string_view text) { return text.starts_with('/'); }

std::string TextFromPath(const std::filesystem::path& path) { return path.string(); }

bool AppendFile::Open(const std::filesystem::path& path) {
  Close();
  std::error_code error;
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), error);
  // A pipe without a reader is refused instead of waited for.
  constexpr int kFlags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
  handle_ = open(path.c_str(), kFlags, 0666);
  return IsOpen();
}

bool AppendFile::IsOpen() const { return handle_ >= 0; }

bool AppendFile::Write(std::span<const char> data) {
  if (!IsOpen()) return false;
  while (!data.empty()) {
    const ssize_t written = write(static_cast<int>(handle_), data.data(), data.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    data = data.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

std::uint64_t AppendFile::Size() const {
  struct stat status {};
  if (!IsOpen() || fstat(static_cast<int>(handle_), &status) != 0) return 0;
  return static_cast<std::uint64_t>(status.st_size);
}

void AppendFile::Close() {
  if (IsOpen()) close(static_cast<int>(std::exchange(handle_, -1)));
}

// A file is read-only when nobody may write it, whoever asks: the superuser's leave to write it
// anyway must not change what a station sees.
namespace {

constexpr mode_t kPermissionBits = 07777;
constexpr mode_t kWriteBits = S_IWUSR | S_IWGRP | S_IWOTH;

bool NobodyMayWrite(const struct stat& status) { return (status.st_mode & kWriteBits) == 0; }

}  // namespace

bool SetReadOnly(const std::filesystem::path& path, bool readOnly) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return false;
  const mode_t mode = status.st_mode & kPermissionBits;
  return chmod(path.c_str(), readOnly ? mode & ~kWriteBits : mode | S_IWUSR) == 0;
}

bool IsReadOnly(const std::filesystem::path& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && NobodyMayWrite(status);
}

}  // namespace merovane::platform
