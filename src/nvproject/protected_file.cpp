#include "nvproject/protected_file.h"

#include <filesystem>

#include "platform/console.h"
#include "platform/files.h"

namespace merovane::nvproject {
namespace {

// Takes the read-only attribute off a file that has it, for a while.
class WritableForNow {
 public:
  explicit WritableForNow(const std::filesystem::path& file)
      : file_(file), cleared_(platform::IsReadOnly(file) && platform::SetReadOnly(file, false)) {}
  WritableForNow(const WritableForNow&) = delete;
  WritableForNow& operator=(const WritableForNow&) = delete;
  ~WritableForNow() {
    if (cleared_) platform::SetReadOnly(file_, true);
  }

  bool Cleared() const { return cleared_; }

 private:
  const std::filesystem::path& file_;
  bool cleared_;
};

bool WriteReadOnly(const std::filesystem::path& file, std::span<const char> data) {
  const WritableForNow writable(file);
  return writable.Cleared() && platform::ReplaceFile(file, data);
}

}  // namespace

bool WriteProtectedFile(const std::string& path, std::span<const char> data) {
  const std::filesystem::path file = platform::PathFromText(path);
  const bool written = platform::ReplaceFile(file, data) || WriteReadOnly(file, data);
  if (!written) ShowFileError("Can't open file " + path + "!");
  return written;
}

void ShowFileError(const std::string& text) { platform::ShowMessageBox(text, "Error"); }

}  // namespace merovane::nvproject
