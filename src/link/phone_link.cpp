#include "link/phone_link.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <utility>

namespace merovane {
namespace {

// A frame is extracted as soon as its closing flag is there, not after a full buffer.
constexpr std::size_t kReadBytes = 64;
// What a frame whose start arrived just before the limit gets to finish.
constexpr std::uint32_t kStartedFrameExtensionMs = 500;
constexpr std::uint8_t kRefusalSubtype = 2;

std::size_t CopyCut(std::span<const std::uint8_t> from, std::span<std::uint8_t> to) {
  const std::size_t count = std::min(from.size(), to.size());
  if (count > 0) std::memcpy(to.data(), from.data(), count);
  return count;
}

}  // namespace

PhoneLink::PhoneLink(LinkSettings& settings, platform::Clock& clock, ChannelLibrary library)
    : settings_(settings), clock_(clock), channel_(settings, clock, library) {}

Result PhoneLink::Open(std::int32_t port, std::int32_t baudRate) {
  if (settings_.usefulLog && port >= 1 && baudRate >= 1 && !IsOpen()) {
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), "Com%d_UsefulLog.txt", static_cast<int>(port));
    usefulLog_ = std::make_unique<PortLog>();
    if (usefulLog_->Open(text.data())) {
      usefulLog_->Opened(port, baudRate);
    } else {
      usefulLog_.reset();
    }
  }
  ring_.Clear();
  const Result result = channel_.Open(port, baudRate);
  // Open and close name their result "SUCCESS" whatever it is.
  if (PortLog* log = UsefulLog()) log->Result(result, "SUCCESS");
  if (!Succeeded(result) && !IsOpen()) usefulLog_.reset();
  return result;
}

Result PhoneLink::Close() {
  const Result result = channel_.Close();
  if (PortLog* log = UsefulLog()) {
    log->Line("Close");
    log->Result(result, "SUCCESS");
  }
  if (Succeeded(result)) usefulLog_.reset();
  return result;
}

Result PhoneLink::SendFrame(FrameId id, std::span<const std::uint8_t> payload) {
  const std::size_t rawBytes = payload.size() + kHeaderBytes;
  const std::size_t encodedCapacity = MaxEncodedBytes(rawBytes);
  if (encodedCapacity < payload.size()) return Result::EncodeFailed;
  std::unique_ptr<std::uint8_t[]> encoded(new (std::nothrow) std::uint8_t[encodedCapacity]);
  std::size_t encodedBytes = 0;
  {
    const std::unique_ptr<std::uint8_t[]> raw(new (std::nothrow) std::uint8_t[rawBytes]);
    if (!raw || !encoded) return Result::EncodeFailed;
    const std::span<std::uint8_t> rawFrame(raw.get(), rawBytes);
    BuildHeader(id, std::exchange(nextSequence_, 0), payload, rawFrame);
    encodedBytes = EncodeFrame(rawFrame, {encoded.get(), encodedCapacity});
  }

  if (!settings_.ReceivesThroughThread()) {
    static_cast<void>(channel_.Clear());
    LogLine("Clear Port Buffer");
  }
  channel_.ClearThreadRing();
  ring_.Clear();

  const std::span<const std::uint8_t> frame(encoded.get(), encodedBytes);
  const Result result = channel_.Write(frame);
  if (Succeeded(result)) {
    if (PortLog* log = UsefulLog()) log->Data(frame, true);
  }
  return result;
}

Result PhoneLink::SendAndWait(FrameId request, FrameId awaited,
                              std::span<const std::uint8_t> payload, std::span<std::uint8_t> answer,
                              std::uint32_t* answerLength, std::uint32_t timeoutMs) {
  if (answer.empty() || !answerLength) return Result::InvalidParam;
  const Result sent = SendFrame(request, payload);
  if (!Succeeded(sent)) return sent;
  // A settings file may take time away as well.
  const auto incrementMs = static_cast<std::int32_t>(settings_.receiveIncrementMs.load());
  const std::int64_t limitMs = std::int64_t{timeoutMs} + incrementMs;
  return WaitForAnswer(
      awaited, answer, answerLength,
      static_cast<std::uint32_t>(std::clamp<std::int64_t>(limitMs, 0, UINT32_MAX)));
}

Result PhoneLink::SendAndWaitSame(FrameId id, std::span<const std::uint8_t> payload,
                                  std::uint32_t timeoutMs) {
  AnswerBuffer answer;
  std::uint32_t length = 0;
  return SendAndWait(id, id, payload, answer, &length, timeoutMs);
}

Result PhoneLink::WaitForAnswer(FrameId awaited, std::span<std::uint8_t> answer,
                                std::uint32_t* answerLength, std::uint32_t timeoutMs) {
  const platform::Deadline deadline(clock_, timeoutMs);
  AnswerBuffer frame;
  while (!deadline.Passed() && !channel_.Cancelled()) {
    FrameId id{};
    std::uint32_t length = 0;
    const Result result = ReceiveTyped(id, frame, length, deadline.RemainingMs());
    if (!Succeeded(result)) continue;
    const auto received = std::span<const std::uint8_t>(frame).first(length);
    if (id == awaited) {
      const auto payload = received.subspan(kHeaderBytes);
      CopyCut(payload, answer);
      *answerLength = static_cast<std::uint32_t>(payload.size());
      LogReceived(received);
      return Result::Success;
    }
    if (id == FrameId{awaited.type, kRefusalSubtype}) return Result::Refused;
  }
  return Result::NoAnswer;
}

Result PhoneLink::ReceiveFrame(std::span<std::uint8_t> output, std::uint32_t& length,
                               std::uint32_t timeoutMs) {
  length = 0;
  platform::Deadline deadline(clock_, timeoutMs);
  bool extended = false;
  bool readFirst = ring_.Count() < kMinFrameBytes;
  AnswerBuffer frame;
  std::size_t frameBytes = 0;
  for (bool timeLeft = true; timeLeft;) {
    if (readFirst) {
      const std::uint32_t remainingMs = deadline.RemainingMs();
      if (remainingMs == 0) break;
      std::array<std::uint8_t, kReadBytes> chunk;
      std::size_t got = 0;
      const Result read = channel_.Read(chunk, remainingMs, got);
      if (!Succeeded(read)) return read;
      ring_.Append(std::span<const std::uint8_t>(chunk).first(got));
    }
    readFirst = true;
    const FrameSearch::Outcome outcome = search_.Extract(frame);
    frameBytes = outcome.frameBytes;
    if (frameBytes > 0) break;
    timeLeft = !deadline.Passed();
    if (!timeLeft && outcome.flagSeen && !extended) {
      deadline.ExtendFromNow(kStartedFrameExtensionMs);
      timeLeft = extended = true;
    }
  }
  if (frameBytes == 0) return Result::NoFrame;

  AnswerBuffer decoded;
  const std::size_t decodedBytes =
      DecodeFrame(std::span<const std::uint8_t>(frame).first(frameBytes), decoded);
  if (decodedBytes == 0 || decodedBytes > frameBytes) return Result::DecodeFailed;
  length = static_cast<std::uint32_t>(
      CopyCut(std::span<const std::uint8_t>(decoded).first(decodedBytes), output));
  return decodedBytes > output.size() ? Result::BufferTooSmall : Result::Success;
}

Result PhoneLink::ReceiveTyped(FrameId& id, std::span<std::uint8_t> output, std::uint32_t& length,
                               std::uint32_t timeoutMs) {
  const Result result = ReceiveFrame(output, length, timeoutMs);
  if (!Succeeded(result)) return result;
  if (length < kHeaderBytes) return Result::NoAnswer;
  id = IdOf(output);
  return Result::Success;
}

Result PhoneLink::ReceiveMulti(FrameId id, std::uint8_t* const* buffers, std::uint32_t maxCount,
                               std::uint32_t bufferBytes, std::uint32_t* count,
                               std::uint32_t* lengths, std::uint32_t timeoutMs) {
  // The byte behind the first pointer is tested, so a zero-filled first buffer is refused.
  if (!buffers || !buffers[0] || buffers[0][0] == 0 || !count || !lengths) {
    return Result::InvalidParam;
  }
  const platform::Deadline deadline(clock_, timeoutMs);
  AnswerBuffer frame;
  std::uint32_t received = 0;
  while (!deadline.Passed() && !channel_.Cancelled()) {
    FrameId receivedId{};
    std::uint32_t length = 0;
    if (!Succeeded(ReceiveTyped(receivedId, frame, length, deadline.RemainingMs())) ||
        receivedId != id) {
      continue;
    }
    // Taken as established: index maxCount is still filled, so callers hold one entry more.
    if (received > maxCount || length > bufferBytes) return Result::BufferTooSmall;
    const auto whole = std::span<const std::uint8_t>(frame).first(length);
    CopyCut(whole, {buffers[received], bufferBytes});
    lengths[received] = length;
    ++received;
    LogReceived(whole);
  }
  *count = received;
  return received < 1 ? Result::NoData : Result::Success;
}

void PhoneLink::LogLine(std::string_view text) {
  if (PortLog* log = UsefulLog()) log->Line(text);
}

void PhoneLink::LogResult(Result result) {
  if (PortLog* log = UsefulLog()) log->Result(result, ResultName(result));
}

void PhoneLink::LogReceived(std::span<const std::uint8_t> decodedFrame) {
  PortLog* log = UsefulLog();
  if (!log) return;
  // The answer's decoded bytes between two flags.
  std::array<std::uint8_t, kMaxFrameBytes + 2> flagged;
  flagged.front() = kFlag;
  const std::size_t bytes =
      CopyCut(decodedFrame, std::span<std::uint8_t>(flagged).subspan(1, kMaxFrameBytes));
  flagged[bytes + 1] = kFlag;
  log->Data(std::span<const std::uint8_t>(flagged).first(bytes + 2), false);
}

}  // namespace merovane
