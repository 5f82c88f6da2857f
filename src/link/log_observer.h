// Who is told the lines of Useful logs, whether or not these are kept in files.
#pragma once

#include <cstdint>
#include <string>

namespace merovane {

// For any thread.
class LogObserver {
 public:
  virtual ~LogObserver() = default;
  virtual bool WantsLines() const = 0;
  // Never waits for a disk or for whoever listens.
  virtual void TellLine(std::int32_t port, std::string line) = 0;
};

}  // namespace merovane
