// One run of a command: what every command does besides its exchange.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "commands/phone.h"
#include "link/frame_codec.h"
#include "link/result.h"

namespace merovane::commands {

// What a frame can carry: its length field counts header and payload in 16 bits.
inline constexpr std::size_t kMaxPayloadBytes =
    std::numeric_limits<std::uint16_t>::max() - kHeaderBytes;

// A command makes one first thing, so that a refused argument is reported under its id too; logs
// its name once its arguments are checked; and returns what Finish gives back.
class Operation {
 public:
  Operation(Phone& phone, std::uint32_t id) : link_(phone.link) {
    link_.Settings().errors.BeginOperation(id);
  }
  // For the few commands that have no id: results go by the id recorded before.
  explicit Operation(Phone& phone) : link_(phone.link) {}

  void Log(std::string_view name) { link_.LogLine(name); }

  // Logs the result and gives it back.
  [[nodiscard]] Result Finish(Result result) {
    link_.LogResult(result);
    return result;
  }

 private:
  PhoneLink& link_;
};

// An answer's payload, which stands in this object.
class Answer {
 public:
  // Sends and waits; the awaited type and subtype may differ from the request's.
  Answer(PhoneLink& link, FrameId request, FrameId awaited, std::span<const std::uint8_t> payload,
         std::uint32_t timeoutMs)
      : result(link.SendAndWait(request, awaited, payload, buffer_, &length_, timeoutMs)) {}
  Answer(PhoneLink& link, FrameId id, std::span<const std::uint8_t> payload,
         std::uint32_t timeoutMs)
      : Answer(link, id, id, payload, timeoutMs) {}

  explicit operator bool() const { return Succeeded(result); }
  // What arrived: never longer than a frame can be, empty when nothing did.
  std::span<const std::uint8_t> Payload() const {
    return Succeeded(result) ? std::span<const std::uint8_t>(buffer_).first(length_)
                             : std::span<const std::uint8_t>{};
  }

 private:
  AnswerBuffer buffer_;
  std::uint32_t length_ = 0;

 public:
  Result result;
};

}  // namespace merovane::commands
