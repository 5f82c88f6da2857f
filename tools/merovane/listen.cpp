#include "merovane/listen.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "link/phone_link.h"
#include "platform/files.h"

namespace merovane::tool {
namespace {

// Frames are shown when a wait of this length is over.
constexpr std::uint32_t kWaitMs = 200;
// More than arrive in one.
constexpr std::uint32_t kMaxFrames = 512;

void Show(FrameId id, std::span<const std::uint8_t> payload, std::ostream& out) {
  out << unsigned{id.type} << '/' << unsigned{id.subtype} << "  " << payload.size() << " bytes ";
  std::array<char, 4> text;
  for (const std::uint8_t byte : payload) {
    std::snprintf(text.data(), text.size(), " %02x", byte);
    out << text.data();
  }
  out << std::endl;
}

}  // namespace

int Listen(const ListenOptions& options, std::ostream& out) {
  LinkEnvironment environment(platform::ExecutableDirectory());
  PhoneLink link(environment);
  const std::string name = "port " + std::to_string(options.port);
  if (const Result opened = link.Open(options.port, options.baudRate); !Succeeded(opened)) {
    throw Trouble(name + ": " + std::string(ResultMeaning(opened)));
  }
  const FrameId id{static_cast<std::uint8_t>(options.type),
                   static_cast<std::uint8_t>(options.subtype)};
  out << name << ": listening" << std::endl;

  // One more than the largest number that is asked for.
  std::vector<std::array<std::uint8_t, kMaxFrameBytes>> frames(kMaxFrames + 1);
  std::vector<std::uint8_t*> buffers;
  buffers.reserve(frames.size());
  for (auto& frame : frames) buffers.push_back(frame.data());
  std::vector<std::uint32_t> lengths(frames.size());
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(options.seconds);
  while (std::chrono::steady_clock::now() < end) {
    frames[0][0] = 1;  // a first buffer that begins with zero is refused
    std::uint32_t count = 0;
    const Result result = link.ReceiveMulti(id, buffers.data(), kMaxFrames, kMaxFrameBytes, &count,
                                            lengths.data(), kWaitMs);
    if (result == Result::BufferTooSmall) out << "too many frames at once\n";
    for (std::uint32_t i = 0; i < count; ++i) {
      Show(id, std::span(frames[i]).first(lengths[i]).subspan(kHeaderBytes), out);
    }
  }
  link.Close();
  return kOk;
}

}  // namespace merovane::tool
