// Replaces a file by renaming a new one onto it.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "platform/files.h"
#include "platform/posix/posix_api.h"

namespace merovane::platform {
namespace {

bool WriteAt(int descriptor, std::span<const char> data, off_t offset) {
  while (!data.empty()) {
    const ssize_t written = pwrite(descriptor, data.data(), data.size(), offset);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    data = data.subspan(static_cast<std::size_t>(written));
    offset += written;
  }
  return true;
}

std::optional<std::vector<char>> ReadWhole(int descriptor, off_t size) {
  std::vector<char> content(static_cast<std::size_t>(size));
  std::size_t got = 0;
  while (got < content.size()) {
    const ssize_t read =
        pread(descriptor, content.data() + got, content.size() - got, static_cast<off_t>(got));
    if (read < 0 && errno == EINTR) continue;
    if (read <= 0) return std::nullopt;
    got += static_cast<std::size_t>(read);
  }
  return content;
}

std::filesystem::path TemporaryNameBeside(const std::filesystem::path& path) {
  static std::atomic<unsigned> counter{0};
  return path.parent_path() /
         (".merovane-" + std::to_string(getpid()) + "-" + std::to_string(++counter) + ".tmp");
}

// `old` is the file that stands there now, if one does.
bool WriteBesideAndRename(const std::filesystem::path& temporary, const std::filesystem::path& path,
                          UniqueDescriptor& file, const std::optional<struct stat>& old,
                          std::span<const char> data) {
  bool whole = WriteAt(file.Get(), data, 0);
  if (old) {
    // Only the superuser can give a file away; the mode comes after, since giving away clears bits.
    static_cast<void>(fchown(file.Get(), old->st_uid, old->st_gid) == 0);
    whole = fchmod(file.Get(), old->st_mode & 07777) == 0 && whole;
  }
  whole = file.Close() && whole;
  if (whole && rename(temporary.c_str(), path.c_str()) == 0) return true;
  unlink(temporary.c_str());
  return false;
}

// For a file whose directory takes no second one. Room is reserved before the first byte is
// changed, and the old content is put back when a write fails all the same.
bool OverwriteInReservedRoom(const std::filesystem::path& path, off_t oldSize,
                             std::span<const char> data) {
  UniqueDescriptor file(open(path.c_str(), O_RDWR | O_CLOEXEC));
  if (!file) return false;
  const auto old = ReadWhole(file.Get(), oldSize);
  if (!old) return false;
  const off_t size = static_cast<off_t>(data.size());
  const off_t room = std::max(size, oldSize);
  if (room > 0 && fallocate(file.Get(), FALLOC_FL_KEEP_SIZE, 0, room) != 0) return false;
  if (WriteAt(file.Get(), data, 0) && ftruncate(file.Get(), size) == 0) return true;
  WriteAt(file.Get(), *old, 0);
  static_cast<void>(ftruncate(file.Get(), oldSize) == 0);
  return false;
}

// A device has no content to lose.
bool WriteToDevice(const std::filesystem::path& path, std::span<const char> data) {
  AppendFile device;
  return device.Open(path) && device.Write(data);
}

}  // namespace

bool ReplaceFile(const std::filesystem::path& path, std::span<const char> data) {
  // Through a link: the file it names is replaced and the link stays.
  std::error_code error;
  std::filesystem::path target = std::filesystem::canonical(path, error);
  if (error) target = path;

  std::optional<struct stat> old;
  struct stat status {};
  if (stat(target.c_str(), &status) == 0) {
    if (IsReadOnly(target) || faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
      return false;
    }
    if (S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode)) return WriteToDevice(target, data);
    if (!S_ISREG(status.st_mode)) return false;
    old = status;
  }

  const std::filesystem::path temporary = TemporaryNameBeside(target);
  UniqueDescriptor file(open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (file) return WriteBesideAndRename(temporary, target, file, old, data);
  return old && OverwriteInReservedRoom(target, old->st_size, data);
}

}  // namespace merovane::platform
