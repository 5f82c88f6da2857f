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

// What a handset sends while it boots: a whole frame without payload.
std::array<std::uint8_t, kMinFrameBytes> StartFrame() {
  std::array<std::uint8_t, kMinFrameBytes> frame{};
  frame.front() = frame.back() = kFlag;
  BuildHeader({0xFE, 1}, 0, {}, std::span(frame).subspan(1, kHeaderBytes));
  return frame;
}

// Looks for the start frame in the held bytes and says how many of them to remove. A start frame
// that may be arriving in pieces stays.
std::size_t SearchStartFrame(std::span<const std::uint8_t> held,
                             std::span<const std::uint8_t> pattern, bool& found) {
  std::size_t lastFlag = 0;
  for (std::size_t at = 0; at < held.size(); ++at) {
    if (held[at] != kFlag) continue;
    lastFlag = at;
    if (held.size() - at < pattern.size()) break;
    found = std::ranges::equal(pattern, held.subspan(at, pattern.size()));
    if (found) return held.size();
  }
  return held.size() >= lastFlag + pattern.size() ? held.size() : lastFlag;
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

Result PhoneLink::WriteRaw(std::span<const std::uint8_t> data) { return channel_.Write(data); }

Answer PhoneLink::SendAndWait(FrameId request, FrameId awaited,
                              std::span<const std::uint8_t> payload, std::uint32_t timeoutMs) {
  return Answer(Order(), [&](Answer& answer) {
    const Result sent = SendFrame(request, payload);
    return Succeeded(sent) ? Receive(answer, awaited, WithIncrement(timeoutMs)) : sent;
  });
}

Answer PhoneLink::SendAndWaitSame(FrameId id, std::span<const std::uint8_t> payload,
                                  std::uint32_t timeoutMs) {
  return SendAndWait(id, id, payload, timeoutMs);
}

Answer PhoneLink::WaitForAnswer(FrameId awaited, std::uint32_t timeoutMs) {
  return Answer(Order(), [&](Answer& answer) { return Receive(answer, awaited, timeoutMs); });
}

Answer PhoneLink::WaitForIncrement(FrameId awaited) {
  return WaitForAnswer(awaited, WithIncrement(0));
}

Frame PhoneLink::ReceiveFrame(std::uint32_t timeoutMs) {
  return Frame(Order(), [&](Frame& frame) { return Receive(frame, timeoutMs); });
}

Frame PhoneLink::ReceiveTyped(std::uint32_t timeoutMs) {
  return Frame(Order(), [&](Frame& frame) {
    const Result result = Receive(frame, timeoutMs);
    return Succeeded(result) && frame.bytes_ < kHeaderBytes ? Result::NoAnswer : result;
  });
}

// A settings file may take time away as well.
std::uint32_t PhoneLink::WithIncrement(std::uint32_t timeoutMs) const {
  const auto incrementMs = static_cast<std::int32_t>(settings_.receiveIncrementMs.load());
  return static_cast<std::uint32_t>(
      std::clamp<std::int64_t>(std::int64_t{timeoutMs} + incrementMs, 0, UINT32_MAX));
}

Result PhoneLink::Receive(Frame& frame, FrameId awaited, std::uint32_t timeoutMs) {
  const platform::Deadline deadline(clock_, timeoutMs);
  while (!deadline.Passed() && !channel_.Cancelled()) {
    if (!Succeeded(Receive(frame, deadline.RemainingMs())) || frame.bytes_ < kHeaderBytes) continue;
    if (frame.Id() == awaited) {
      LogReceived(frame.Bytes());
      return Result::Success;
    }
    if (frame.Id() == FrameId{awaited.type, kRefusalSubtype}) return Result::Refused;
  }
  return Result::NoAnswer;
}

Result PhoneLink::Receive(Frame& received, std::uint32_t timeoutMs) {
  received.bytes_ = 0;
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
  received.bytes_ =
      DecodeFrame(std::span<const std::uint8_t>(frame).first(frameBytes), received.storage_);
  return received.bytes_ == 0 ? Result::DecodeFailed : Result::Success;
}

Result PhoneLink::ReceiveStartFrame(std::span<std::uint8_t, kHeaderBytes> header,
                                    std::uint32_t timeoutMs) {
  const auto pattern = StartFrame();
  const platform::Deadline deadline(clock_, timeoutMs);
  AnswerBuffer chunk;
  while (!deadline.Passed() && !channel_.Cancelled()) {
    std::size_t got = 0;
    if (!Succeeded(channel_.Read(chunk, deadline.RemainingMs(), got))) continue;
    ring_.Append(std::span<const std::uint8_t>(chunk).first(got));
    bool found = false;
    ring_.Visit([&](std::span<const std::uint8_t> held, std::uint64_t) {
      return SearchStartFrame(held, pattern, found);
    });
    if (!found) continue;
    std::ranges::copy(std::span(pattern).subspan<1, kHeaderBytes>(), header.begin());
    LogReceived(header);
    ring_.Clear();
    return Result::Success;
  }
  return Result::NoUsefulData;
}

Result PhoneLink::SendAndWait(FrameId request, FrameId awaited,
                              std::span<const std::uint8_t> payload, std::span<std::uint8_t> answer,
                              std::uint32_t* answerLength, std::uint32_t timeoutMs) {
  if (answer.empty() || !answerLength) return Result::InvalidParam;
  const Answer received = SendAndWait(request, awaited, payload, timeoutMs);
  if (!received) return received.Why();
  CopyCut(received.Payload(), answer);
  *answerLength = static_cast<std::uint32_t>(received.Payload().size());
  return Result::Success;
}

Result PhoneLink::WaitForAnswer(FrameId awaited, std::span<std::uint8_t> answer,
                                std::uint32_t* answerLength, std::uint32_t timeoutMs) {
  const Answer received = WaitForAnswer(awaited, timeoutMs);
  if (!received) return received.Why();
  CopyCut(received.Payload(), answer);
  *answerLength = static_cast<std::uint32_t>(received.Payload().size());
  return Result::Success;
}

Result PhoneLink::ReceiveFrame(std::span<std::uint8_t> output, std::uint32_t& length,
                               std::uint32_t timeoutMs) {
  const Frame frame = ReceiveFrame(timeoutMs);
  length = static_cast<std::uint32_t>(CopyCut(frame.Bytes(), output));
  return frame.Bytes().size() > output.size() ? Result::BufferTooSmall : frame.Why();
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
