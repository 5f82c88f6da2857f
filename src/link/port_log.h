// One of a port's two logs: the Useful log of what commands did, or the All log of every byte.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "link/log_file.h"
#include "link/result.h"

namespace merovane {

// For any thread. While it is not open, what is written to it is lost.
class PortLog {
 public:
  // Opens `fileName` in the folder "Log" of `home`, there in that of the day; false when that
  // cannot be done.
  bool Open(const std::filesystem::path& home, std::string_view fileName);
  void Close() { file_.Close(); }
  // Where the logs of a day stand.
  static std::filesystem::path FolderOfToday(const std::filesystem::path& home);
  void Line(std::string_view text);
  void Data(std::span<const std::uint8_t> bytes, bool sent);

  // How a port's opening and a result are written.
  static std::string OpenLine(std::int32_t port, std::int32_t baudRate);
  static std::string ResultLine(Result code, std::string_view name);

 private:
  LogFile file_;
};

}  // namespace merovane
