#include "commands/handset/at_command.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr FrameId kAtRequest{104, 0};
constexpr FrameId kAtAcknowledgement{213, 0};
constexpr FrameId kAtAnswer{156, 0};
constexpr std::uint32_t kAcknowledgementMs = 1000;
// A command's text is built in a frame's room.
constexpr std::size_t kMaxCommandBytes = kMaxFrameBytes;

std::span<const std::uint8_t> Bytes(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

Result SendCommand(Phone& phone, std::string_view command) {
  return phone.link.SendAndWait(kAtRequest, kAtAcknowledgement, Bytes(command), kAcknowledgementMs)
      .Why();
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

std::string_view Text(const AnswerBuffer& frame, std::uint32_t length) {
  const std::size_t bytes = std::min<std::size_t>(length, frame.size());
  return {reinterpret_cast<const char*>(frame.data()), bytes};
}

}  // namespace

Result SendAtCommand(Phone& phone, const char* command, std::uint32_t, std::uint32_t wait,
                     char* answer, std::uint32_t capacity, std::uint32_t* answerLength,
                     std::uint32_t timeoutMs) {
  Operation operation(phone, 15);
  if (!command || timeoutMs == 0) return Result::InvalidParam;
  if (wait && (!answer || !IsCapacity(capacity) || !answerLength)) return Result::InvalidParam;
  const std::size_t commandBytes = ::strnlen(command, kMaxCommandBytes);
  if (commandBytes + 2 > kMaxCommandBytes) return Result::InvalidParam;
  operation.Log("SendAtCommand:");

  Result result = SendCommand(phone, std::string(command, commandBytes) + "\r\n");
  if (!wait || !Succeeded(result)) return operation.Finish(result);

  result = Result::NoData;
  std::size_t collected = 0;
  const platform::Deadline deadline(phone.link.Clock(), timeoutMs);
  while (!deadline.Passed()) {
    AnswerBuffer frame;
    std::uint32_t length = 0;
    // Every frame may take the whole limit: a slow command must not lose its last line.
    if (!Succeeded(phone.link.WaitForAnswer(kAtAnswer, frame, &length, timeoutMs))) continue;
    const std::string_view text = Text(frame, length);
    if (collected + text.size() > capacity) {
      result = Result::BufferTooSmall;
      break;
    }
    text.copy(answer + collected, text.size());
    collected += text.size();
    result = Result::Success;
    if (EndsInOk({answer, collected})) break;
  }
  *answerLength = static_cast<std::uint32_t>(collected);
  return operation.Finish(result);
}

Result SendAT(Phone& phone, const char* command, std::uint32_t length, char* answer,
              std::uint32_t capacity, std::uint32_t* answerLength, std::uint32_t timeoutMs) {
  Operation operation(phone, 219);
  if (!command || length == 0 || length > kMaxCommandBytes || timeoutMs == 0)
    return Result::InvalidParam;
  const bool wantsAnswer = answer && answerLength;
  if (wantsAnswer && !IsCapacity(capacity)) return Result::InvalidParam;
  operation.Log("SendAT:");

  Result result = SendCommand(phone, {command, length});
  if (!wantsAnswer || !Succeeded(result)) return operation.Finish(result);

  result = Result::NoData;
  std::size_t collected = 0;
  const platform::Deadline deadline(phone.link.Clock(), timeoutMs);
  while (!deadline.Passed() && result != Result::Success) {
    AnswerBuffer frame;
    std::uint32_t frameLength = 0;
    if (!Succeeded(phone.link.WaitForAnswer(kAtAnswer, frame, &frameLength, timeoutMs))) break;
    std::string text(Text(frame, frameLength));
    if (const std::size_t end = text.find('\0'); end != std::string::npos) text.resize(end);
    // "OK", or the prompt for further input.
    if (text.find("OK") != std::string::npos || text.find('>') != std::string::npos) {
      result = Result::Success;
      break;
    }
    std::erase_if(text, [](char character) { return character == '\r' || character == '\n'; });
    if (collected + text.size() > capacity) {
      result = Result::BufferTooSmall;
      break;
    }
    text.copy(answer + collected, text.size());
    collected += text.size();
  }
  *answerLength = static_cast<std::uint32_t>(collected);
  return operation.Finish(result);
}

Result GetCurrCellInfo(Phone& phone, QV_CELL_INFO* cell) {
  Operation operation(phone, 16);
  if (!cell) return Result::InvalidParam;
  std::array<char, kMaxFrameBytes> answer;
  std::uint32_t length = 0;
  const Result result = SendAtCommand(phone, "AT+CCED=0,1", 11, 1, answer.data(),
                                      static_cast<std::uint32_t>(answer.size()), &length, 2000);
  if (!Succeeded(result)) return result;
  const std::string text(answer.data(), length);
  const std::size_t line = text.find("+CCED");
  if (line == std::string::npos) return Result::NoUsefulData;
  QV_CELL_INFO found{};
  auto& v = found.values;
  std::sscanf(text.c_str() + line, "+CCED:%d,%d,%d,%d,%d,%d,%d,%d", &v[0], &v[1], &v[2], &v[3],
              &v[4], &v[5], &v[6], &v[7]);
  *cell = found;
  return Result::Success;
}

}  // namespace merovane::commands
