// Reads what a port's log has gained.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace merovane::test {

class LogReader {
 public:
  // Of the log "Com<port>_<name>.txt" in the folder "Log" of `home`, by default this program's,
  // whatever its day's folder.
  LogReader(int port, std::string_view name, const std::filesystem::path& home = {});
  ~LogReader();
  LogReader(const LogReader&) = delete;
  LogReader& operator=(const LogReader&) = delete;

  // The lines since the last call, without time stamps. A hex dump is one line:
  // "--> 7E 00 00 00 00 00 08 0C 00 7E".
  std::vector<std::string> Take();
  // The same without hex dumps.
  std::vector<std::string> TakeText();
  // The whole file as it stands.
  std::string Whole() const;
  // Empty while there is no file.
  std::filesystem::path File() const;

 private:
  std::filesystem::path folder_;
  std::string fileName_;
  std::size_t seenBytes_ = 0;
};

}  // namespace merovane::test
