// The Useful log of a link: what its commands did. In a file, where the settings want it, and line
// by line for who observes logs.
#pragma once

#include <atomic>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "link/link_environment.h"
#include "link/port_log.h"
#include "link/result.h"

namespace merovane {

// For any thread.
class UsefulLog {
 public:
  explicit UsefulLog(const LinkEnvironment& environment) : environment_(environment) {}

  // Opens the file, if one is wanted; it is written to until the end.
  void Begin(std::int32_t port, std::int32_t baudRate);
  void End() { file_.Close(); }
  // Of the last beginning, 0 before.
  std::int32_t Port() const { return port_; }

  void Line(std::string_view text);
  void Result(merovane::Result result, std::string_view name);
  void Sent(std::span<const std::uint8_t> frame);
  // Shown between two flags, as it travelled but for escapes.
  void Received(std::span<const std::uint8_t> decodedFrame);

 private:
  bool IsKept() const { return environment_.settings.usefulLog; }
  bool IsObserved() const {
    return environment_.logObserver && environment_.logObserver->WantsLines();
  }
  void Observe(std::string line) const {
    environment_.logObserver->TellLine(port_, std::move(line));
  }

  const LinkEnvironment& environment_;
  PortLog file_;
  std::atomic<std::int32_t> port_{0};
};

}  // namespace merovane
