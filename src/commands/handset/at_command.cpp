// AT commands over the diagnostic link: the request is acknowledged at once, the answer follows in
// frames of text.
#include "commands/handset/at_command.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "declared/phone_mode.h"

namespace merovane::commands {
namespace {

constexpr FrameId kAtRequest{104, 0};
constexpr FrameId kAtAcknowledgement{213, 0};
constexpr FrameId kAtAnswer{156, 0};
constexpr std::uint32_t kAcknowledgementMs = 1000;
constexpr std::uint32_t kCellInfoMs = 2000;
constexpr std::string_view kLineEnd = "\r\n";
// A command's text is at most as long as a frame.
constexpr std::size_t kMaxCommandBytes = kMaxFrameBytes;

Result SendCommand(PhoneLink& link, std::string_view command) {
  const std::span bytes(reinterpret_cast<const std::uint8_t*>(command.data()), command.size());
  return link.SendAndWait(kAtRequest, kAtAcknowledgement, bytes, kAcknowledgementMs).Why();
}

std::string_view TextOf(const Answer& frame) {
  const auto payload = frame.Payload();
  return {reinterpret_cast<const char*>(payload.data()), payload.size()};
}

// A scan that counts matched characters and starts again at a mismatch without testing that
// character anew: "OOK" is not seen to end in "OK". Nothing may follow the four.
bool EndsInOk(std::string_view text) {
  constexpr std::string_view kOk = "OK\r\n";
  std::size_t matched = 0;
  for (const char character : text) {
    matched = matched < kOk.size() && character == kOk[matched] ? matched + 1 : 0;
  }
  return matched == kOk.size();
}

// What an answer has brought so far, in the caller's buffer.
class Collected {
 public:
  explicit Collected(std::span<char> room) : room_(room) {}

  // False, and nothing stored, for text that does not fit.
  bool Add(std::string_view text) {
    if (text.size() > room_.size() - length_) return false;
    text.copy(room_.data() + length_, text.size());
    length_ += text.size();
    return true;
  }
  std::string_view Text() const { return {room_.data(), length_}; }
  std::uint32_t Length() const { return static_cast<std::uint32_t>(length_); }

 private:
  std::span<char> room_;
  std::size_t length_ = 0;
};

// Every frame may take the whole limit: a slow command must not lose its last line.
Result CollectUntilOk(PhoneLink& link, std::uint32_t timeoutMs, Collected& collected) {
  Result result = Result::NoData;
  const auto deadline = link.StartDeadline(timeoutMs);
  while (!deadline.Passed()) {
    const Answer frame = link.WaitForAnswer(kAtAnswer, timeoutMs);
    if (!frame) continue;
    if (!collected.Add(TextOf(frame))) return Result::BufferTooSmall;
    result = Result::Success;
    if (EndsInOk(collected.Text())) break;
  }
  return result;
}

// The frame with the "OK", or with the prompt for further input, ends the answer and is no part of
// it.
Result CollectLines(PhoneLink& link, std::uint32_t timeoutMs, Collected& collected) {
  const auto deadline = link.StartDeadline(timeoutMs);
  while (!deadline.Passed()) {
    const Answer frame = link.WaitForAnswer(kAtAnswer, timeoutMs);
    if (!frame) break;
    std::string text(TextOf(frame));
    text.resize(std::strlen(text.c_str()));
    if (text.find("OK") != std::string::npos || text.find('>') != std::string::npos) {
      return Result::Success;
    }
    std::erase_if(text, [](char character) { return kLineEnd.find(character) != kLineEnd.npos; });
    if (!collected.Add(text)) return Result::BufferTooSmall;
  }
  return Result::NoData;
}

}  // namespace

bool FitsWithLineEnd(const char* command) {
  constexpr std::size_t kMaxTextBytes = kMaxCommandBytes - kLineEnd.size();
  return ::strnlen(command, kMaxTextBytes + 1) <= kMaxTextBytes;
}

Result body::SendAtCommand(Operation& operation, const char* command, std::uint32_t, bool wait,
                           std::span<char> answer, std::uint32_t* answerLength,
                           std::uint32_t timeoutMs) {
  Result result = SendCommand(operation.link, std::string(command).append(kLineEnd));
  if (!wait || !Succeeded(result)) return operation.Finish(result);
  Collected collected(answer);
  result = CollectUntilOk(operation.link, timeoutMs, collected);
  *answerLength = collected.Length();
  return operation.Finish(result);
}

Result body::SendAT(Operation& operation, std::span<const char> command, std::span<char> answer,
                    std::uint32_t* answerLength, std::uint32_t timeoutMs) {
  Result result = SendCommand(operation.link, {command.data(), command.size()});
  if (answer.empty() || !answerLength || !Succeeded(result)) return operation.Finish(result);
  Collected collected(answer);
  result = CollectLines(operation.link, timeoutMs, collected);
  *answerLength = collected.Length();
  return operation.Finish(result);
}

Result body::GetCurrCellInfo(Operation& operation, QV_CELL_INFO& cell) {
  std::array<char, kMaxFrameBytes> answer;
  std::uint32_t length = 0;
  const Result result =
      commands::SendAtCommand(operation.phone, "AT+CCED=0,1", 0, 1, answer.data(),
                              static_cast<std::uint32_t>(answer.size()), &length, kCellInfoMs);
  if (!Succeeded(result)) return result;
  const std::string text(answer.data(), length);
  const std::size_t line = text.find("+CCED");
  if (line == std::string::npos) return Result::NoUsefulData;
  QV_CELL_INFO found{};
  auto& v = found.values;
  std::sscanf(text.c_str() + line, "+CCED:%d,%d,%d,%d,%d,%d,%d,%d", &v[0], &v[1], &v[2], &v[3],
              &v[4], &v[5], &v[6], &v[7]);
  cell = found;
  return Result::Success;
}

}  // namespace merovane::commands
