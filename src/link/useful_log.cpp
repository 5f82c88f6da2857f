#include "link/useful_log.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "link/frame_codec.h"

namespace merovane {
namespace {

std::string Dump(std::string_view mark, std::span<const std::uint8_t> bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string line(mark);
  line.reserve(line.size() + 3 * bytes.size());
  for (const std::uint8_t byte : bytes) {
    line += ' ';
    line += kDigits[byte >> 4];
    line += kDigits[byte & 0xF];
  }
  return line;
}

}  // namespace

void UsefulLog::Begin(std::int32_t port, std::int32_t baudRate) {
  port_ = port;
  if (IsKept()) {
    std::array<char, 64> name;
    std::snprintf(name.data(), name.size(), "Com%d_UsefulLog.txt", static_cast<int>(port));
    static_cast<void>(file_.Open(environment_.settings.Folder(), name.data()));
  }
  Line(PortLog::OpenLine(port, baudRate));
}

void UsefulLog::Line(std::string_view text) {
  if (IsKept()) file_.Line(text);
  if (IsObserved()) Observe(std::string(text));
}

void UsefulLog::Result(merovane::Result result, std::string_view name) {
  if (IsKept() || IsObserved()) Line(PortLog::ResultLine(result, name));
}

void UsefulLog::Sent(std::span<const std::uint8_t> frame) {
  if (IsKept()) file_.Data(frame, true);
  if (IsObserved()) Observe(Dump("-->", frame));
}

void UsefulLog::Received(std::span<const std::uint8_t> decodedFrame) {
  if (!IsKept() && !IsObserved()) return;
  // The answer's decoded bytes, which fit into a frame, between two flags.
  std::array<std::uint8_t, kMaxFrameBytes + 2> flagged;
  flagged.front() = kFlag;
  std::ranges::copy(decodedFrame, flagged.begin() + 1);
  flagged[decodedFrame.size() + 1] = kFlag;
  const auto shown = std::span<const std::uint8_t>(flagged).first(decodedFrame.size() + 2);
  if (IsKept()) file_.Data(shown, false);
  if (IsObserved()) Observe(Dump("<--", shown));
}

}  // namespace merovane
