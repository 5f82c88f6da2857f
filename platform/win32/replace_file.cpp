// Replaces a file by one that is written beside it, or writes it in place where none can be put.
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {
namespace {

std::filesystem::path TemporaryNameBeside(const std::filesystem::path& path) {
  static std::atomic<unsigned> counter{0};
  return path.parent_path() / (L".merovane-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                               std::to_wstring(++counter) + L".tmp");
}

bool Exists(const std::filesystem::path& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool WriteNew(const std::filesystem::path& path, std::span<const char> data) {
  const UniqueHandle file = FileHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                                   CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file.get(), data);
}

bool Move(const std::filesystem::path& from, const std::filesystem::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(), 0) != 0;
}

// Keeps the old file's attributes, access rights and making time, which a move would not.
bool PutInPlaceOf(const std::filesystem::path& path, const std::filesystem::path& temporary) {
  const std::filesystem::path backup = TemporaryNameBeside(path);
  if (ReplaceFileW(path.c_str(), temporary.c_str(), backup.c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS,
                   nullptr, nullptr)) {
    DeleteFileW(backup.c_str());
    return true;
  }
  // It may have failed after the old file had made room.
  if (!Exists(path)) Move(backup, path);
  return false;
}

bool WriteBesideAndPutInPlace(const std::filesystem::path& path, std::span<const char> data) {
  const std::filesystem::path temporary = TemporaryNameBeside(path);
  if (WriteNew(temporary, data) &&
      (Exists(path) ? PutInPlaceOf(path, temporary) : Move(temporary, path))) {
    return true;
  }
  DeleteFileW(temporary.c_str());
  return false;
}

bool SetSize(HANDLE file, std::uint64_t size) {
  LARGE_INTEGER end{};
  end.QuadPart = static_cast<LONGLONG>(size);
  return SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file);
}

bool WriteFromStart(HANDLE file, std::span<const char> data) {
  return SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, FILE_BEGIN) && WriteAll(file, data);
}

std::optional<std::vector<char>> ReadWhole(HANDLE file, std::uint64_t size) {
  constexpr std::size_t kMostAtOnce = 1U << 30;
  std::vector<char> content(static_cast<std::size_t>(size));
  for (std::size_t got = 0; got < content.size();) {
    DWORD read = 0;
    const auto count = static_cast<DWORD>(std::min(content.size() - got, kMostAtOnce));
    if (!ReadFile(file, content.data() + got, count, &read, nullptr) || read == 0) {
      return std::nullopt;
    }
    got += read;
  }
  return content;
}

// For a file that another program holds open, which lets nothing take its place, and for one whose
// folder takes no second file. Room is taken before the first byte is changed, and the old content
// is put back when a write fails all the same.
bool OverwriteInReservedRoom(const std::filesystem::path& path, std::span<const char> data) {
  const UniqueHandle file = FileHandle(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER size{};
  if (!file || !GetFileSizeEx(file.get(), &size)) return false;
  const auto oldSize = static_cast<std::uint64_t>(size.QuadPart);
  const auto old = ReadWhole(file.get(), oldSize);
  if (!old) return false;
  if (SetSize(file.get(), std::max<std::uint64_t>(data.size(), oldSize)) &&
      WriteFromStart(file.get(), data) && SetSize(file.get(), data.size())) {
    return true;
  }
  WriteFromStart(file.get(), *old);
  SetSize(file.get(), oldSize);
  return false;
}

}  // namespace

bool ReplaceFile(const std::filesystem::path& path, std::span<const char> data) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
  constexpr DWORD kNotWritten = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  if (exists && (attributes & kNotWritten) != 0) return false;
  return WriteBesideAndPutInPlace(path, data) || (exists && OverwriteInReservedRoom(path, data));
}

}  // namespace merovane::platform
