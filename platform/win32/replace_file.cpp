// Replaces a file by one that is written beside it.
#include <atomic>
#include <string>

#include "platform/files.h"
#include "platform/win32/windows_api.h"

namespace merovane::platform {
namespace {

std::filesystem::path TemporaryNameBeside(const std::filesystem::path& path) {
  static std::atomic<unsigned> counter{0};
  return path.parent_path() / (L".merovane-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                               std::to_wstring(++counter) + L".tmp");
}

bool WriteNew(const std::filesystem::path& path, std::span<const char> data) {
  const UniqueHandle file = FileHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                                   CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file.get(), data);
}

bool PutInPlace(const std::filesystem::path& temporary, const std::filesystem::path& path) {
  const auto exists = [&path] {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
  };
  // Keeps the old file's attributes, access rights and making time, which a move would not.
  if (exists() && ReplaceFileW(path.c_str(), temporary.c_str(), nullptr,
                               REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
    return true;
  }
  // It may have failed after the old file had made room.
  return !exists() && MoveFileExW(temporary.c_str(), path.c_str(), 0);
}

}  // namespace

bool ReplaceFile(const std::filesystem::path& path, std::span<const char> data) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES &&
      (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) {
    return false;
  }
  const std::filesystem::path temporary = TemporaryNameBeside(path);
  if (WriteNew(temporary, data) && PutInPlace(temporary, path)) return true;
  DeleteFileW(temporary.c_str());
  return false;
}

}  // namespace merovane::platform
