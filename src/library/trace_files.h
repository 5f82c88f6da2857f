// The files of the trace, one for each port, and what is missing in them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/mutex.h"

namespace merovane::library {

class TraceFiles {
 public:
  // Lines that never came into a file, since the process began.
  struct Gap {
    std::filesystem::path file;
    std::uint64_t unwritten = 0;  // the system did not take them
    std::uint64_t overrun = 0;    // they came faster than they were written
  };

  // Keeps a line until Write.
  void Line(const std::filesystem::path& home, std::int32_t port, std::string_view line);
  // Tells that lines were dropped ahead of the next one.
  void Overrun(const std::filesystem::path& home, std::int32_t port, std::uint64_t lines);
  // Whether as much is kept as is written well at once.
  bool IsFull() const { return keptBytes_ >= kWrittenAtOnce; }
  // Opens the files for what is kept; Write does so, too.
  void Open();
  void Write();
  // Between calls a file may be moved away, or deleted.
  void Close();

  // For any thread.
  std::vector<Gap> Gaps() const;

 private:
  struct Port {
    platform::AppendFile file;
    std::string kept;
    std::uint64_t keptLines = 0;
    // What the file is to be told as soon as it takes something.
    std::uint64_t unwritten = 0;
    bool endsInLine = true;  // false: the system took a part of a line
  };

  static constexpr std::size_t kWrittenAtOnce = 65536;

  std::filesystem::path PathOf(std::int32_t port) const;
  void Write(std::int32_t number, Port& port);
  void Note(std::int32_t port, std::uint64_t unwritten, std::uint64_t overrun);

  std::filesystem::path folder_;  // of the day
  std::size_t keptBytes_ = 0;
  std::map<std::int32_t, Port> ports_;

  mutable platform::Mutex mutex_;
  std::map<std::int32_t, Gap> gaps_ MEROVANE_GUARDED_BY(mutex_);
};

}  // namespace merovane::library
