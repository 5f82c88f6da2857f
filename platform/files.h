// Files and paths.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace merovane::platform {

// The directory of the host process's executable.
std::filesystem::path ExecutableDirectory();
// The system's directory for temporary files.
std::filesystem::path TemporaryDirectory();
// Makes a new directory there, whose name starts with `prefix`; empty when it cannot be made.
std::filesystem::path MakeTemporaryDirectory(const std::string& prefix);

// A path as callers and project files write it: bytes in the system's narrow encoding, both
// separators taken on every system.
std::filesystem::path PathFromText(std::string_view text);
// Whether such a path stands by itself: from a drive or a network share on Windows, from the root
// elsewhere.
bool IsAbsolutePath(std::string_view text);
// The way back: the path in the system's narrow encoding, never an exception.
std::string TextFromPath(const std::filesystem::path& path);

// A file that is written at its end, unbuffered: what Write has taken survives a crash of the
// process.
class AppendFile {
 public:
  AppendFile() = default;
  ~AppendFile();
  AppendFile(AppendFile&& other) noexcept;
  AppendFile& operator=(AppendFile&& other) noexcept;

  // Creates the file, its directories too, or opens it to go on at its end. False on failure.
  bool Open(const std::filesystem::path& path);
  bool IsOpen() const;
  // False when not all was written (a full disk, say).
  bool Write(std::span<const char> data);
  // The file's size now, in bytes.
  std::uint64_t Size() const;
  void Close();

 private:
  std::intptr_t handle_ = -1;
};

// Whether files can be made in a folder, or in it once it has been made. Tries it, with a file that
// is gone again.
bool CanMakeFilesIn(std::filesystem::path folder);

// The read-only attribute, every other attribute bit left as it is. False when the attributes
// cannot be read or set. On Linux: nobody may write the file, the superuser included; clearing it
// gives its owner the right.
bool SetReadOnly(const std::filesystem::path& path, bool readOnly);
bool IsReadOnly(const std::filesystem::path& path);

// Puts `data` in place of the file's content: on failure (false) the old file stands whole. It is
// one step, except for a file whose folder takes no second one and, on Windows, for one that
// another program holds open for reading and lets be written; those are written in place. A file
// that is read-only is not written. Owner, access rights and attributes stay.
bool ReplaceFile(const std::filesystem::path& path, std::span<const char> data);

}  // namespace merovane::platform
