#include "link/phone_link.h"

#include <algorithm>
#include <array>
#include <utility>

namespace merovane {
namespace {

// A frame is extracted as soon as its closing flag is there, not after a full buffer.
constexpr std::size_t kReadBytes = 64;
// How often a wait looks whether it is to end.
constexpr std::uint32_t kCancelPollMs = 20;
// What a frame whose start arrived just before the limit gets to finish.
constexpr std::uint32_t kStartedFrameExtensionMs = 500;
constexpr std::uint8_t kRefusalSubtype = 2;

// What a handset sends while it boots: a whole frame without payload.
std::array<std::uint8_t, kMinFrameBytes> StartFrame(ByteOrder order) {
  std::array<std::uint8_t, kMinFrameBytes> frame{};
  frame.front() = frame.back() = kFlag;
  BuildHeader({0xFE, 1}, 0, order, {}, std::span(frame).subspan(1, kHeaderBytes));
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

PhoneLink::PhoneLink(LinkEnvironment& environment, platform::Clock& clock, ChannelLibrary library)
    : environment_(environment),
      clock_(clock),
      channel_(environment, clock, library),
      usefulLog_(environment) {}

Result PhoneLink::Open(std::int32_t port, std::int32_t baudRate) {
  if (ended_) return OrEnded(Result::Success);
  if (port >= 1 && baudRate >= 1 && !IsOpen()) usefulLog_.Begin(port, baudRate);
  ring_.Clear();
  sightings_ = {};
  deviceGone_ = false;
  const Result result = channel_.Open(port, baudRate);
  // Open and close name their result "SUCCESS" whatever it is.
  usefulLog_.Result(result, "SUCCESS");
  if (!Succeeded(result) && !IsOpen()) usefulLog_.End();
  return result;
}

Result PhoneLink::Close() {
  const Result result = channel_.Close();
  usefulLog_.Line("Close");
  usefulLog_.Result(result, "SUCCESS");
  if (Succeeded(result)) usefulLog_.End();
  return result;
}

Result PhoneLink::OrEnded(Result result) {
  if (!ended_) return result;
  cutShort_ = true;
  return Result::PortNotOpen;
}

Result PhoneLink::SendFrame(FrameId id, std::span<const std::uint8_t> payload) {
  if (ended_) return OrEnded(Result::Success);
  const std::size_t rawBytes = payload.size() + kHeaderBytes;
  const std::size_t neededBytes = rawBytes + MaxEncodedBytes(rawBytes);
  if (neededBytes < payload.size()) return Result::EncodeFailed;
  if (sendBuffer_.size() < neededBytes) sendBuffer_.resize(neededBytes);
  const std::span<std::uint8_t> raw = std::span(sendBuffer_).first(rawBytes);
  const std::span<std::uint8_t> encoded = std::span(sendBuffer_).subspan(rawBytes);
  BuildHeader(id, nextSequence_.exchange(0), Order(), payload, raw);
  const std::span<const std::uint8_t> frame = encoded.first(EncodeFrame(raw, encoded));

  if (!environment_.ReceivesThroughThread()) {
    channel_.DropHeld();
    LogLine("Clear Port Buffer");
  }
  channel_.DropFetched();
  ring_.Clear();
  sightings_.BeginWait();

  const Result result = channel_.Write(frame);
  if (Succeeded(result)) {
    if (exchanges_) exchanges_->Sent(id, payload.size());
    usefulLog_.Sent(frame);
  }
  return result;
}

Result PhoneLink::WriteRaw(std::span<const std::uint8_t> data) {
  return ended_ ? OrEnded(Result::Success) : channel_.Write(data);
}

void PhoneLink::Sleep(std::uint32_t ms) {
  const platform::Deadline deadline(clock_, ms);
  // At least so long: a tick of the clock may have begun before this sleep.
  for (std::uint32_t slept = 0; slept < ms;) {
    if (MustEnd()) {
      cutShort_ = cutShort_ || ended_;
      return;
    }
    const std::uint32_t stepMs = std::min(ms - slept, kCancelPollMs);
    clock_.SleepMs(stepMs);
    const std::uint32_t elapsedMs = deadline.ElapsedMs();
    slept = std::max(slept + stepMs, elapsedMs > 0 ? elapsedMs - 1 : 0);
  }
}

Result PhoneLink::Read(std::span<std::uint8_t> into, const platform::Deadline& deadline,
                       std::uint32_t remainingMs, std::size_t& got) {
  got = 0;
  for (;;) {
    if (MustEnd()) return OrEnded(Result::NoData);
    const Result result = channel_.Read(into, std::min(remainingMs, kCancelPollMs), got);
    sightings_.SawBytes(got);
    // A dead channel counts as a silent one, and gives nothing to wait for.
    deviceGone_ = result == Result::DriverError;
    if (deviceGone_) return Result::NoData;
    if (result != Result::NoData) return result;
    remainingMs = deadline.RemainingMs();
    if (remainingMs == 0) return result;
  }
}

Answer PhoneLink::SendAndWait(FrameId request, FrameId awaited,
                              std::span<const std::uint8_t> payload, std::uint32_t timeoutMs) {
  return Answer(Order(), [&](Answer& answer) {
    const Result sent = SendFrame(request, payload);
    return Succeeded(sent)
               ? Receive(answer, awaited, environment_.settings.WithIncrement(timeoutMs))
               : sent;
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
  return WaitForAnswer(awaited, environment_.settings.WithIncrement(0));
}

Frame PhoneLink::ReceiveFrame(std::uint32_t timeoutMs) {
  return Frame(Order(), [&](Frame& frame) {
    const Result result = Receive(frame, timeoutMs);
    if (Succeeded(result)) NoteCame(frame.Id(), frame.Payload().size());
    return result;
  });
}

Frame PhoneLink::ReceiveTyped(std::uint32_t timeoutMs) {
  return Frame(Order(), [&](Frame& frame) {
    const Result result = Receive(frame, timeoutMs);
    return Succeeded(result) && frame.bytes_ < kHeaderBytes ? Result::NoAnswer : result;
  });
}

Result PhoneLink::Receive(Frame& frame, FrameId awaited, std::uint32_t timeoutMs) {
  const Deadline deadline = StartDeadline(timeoutMs);
  while (!deadline.Passed()) {
    if (!Succeeded(Receive(frame, deadline.RemainingMs())) || frame.bytes_ < kHeaderBytes) continue;
    if (frame.Id() == awaited) {
      sightings_.SawAnswer();
      NoteCame(frame.Id(), frame.Payload().size());
      usefulLog_.Received(frame.Bytes());
      return Result::Success;
    }
    if (frame.Id() == FrameId{awaited.type, kRefusalSubtype}) {
      NoteCame(frame.Id(), frame.Payload().size(), Exchange::Outcome::Refused);
      return Result::Refused;
    }
  }
  if (exchanges_) exchanges_->NothingCame();
  return OrEnded(Result::NoAnswer);
}

Result PhoneLink::Receive(Frame& frame, std::uint32_t timeoutMs) {
  frame.bytes_ = 0;
  platform::Deadline deadline(clock_, timeoutMs);
  std::uint32_t remainingMs = timeoutMs;
  bool extended = false;
  bool readFirst = ring_.Count() < kMinFrameBytes;
  for (bool timeLeft = true; timeLeft;) {
    if (readFirst) {
      if (remainingMs == 0) break;
      std::array<std::uint8_t, kReadBytes> chunk;
      std::size_t got = 0;
      const Result read = Read(chunk, deadline, remainingMs, got);
      if (!Succeeded(read)) return read;
      ring_.Append(std::span<const std::uint8_t>(chunk).first(got));
    }
    readFirst = true;
    const FrameSearch::Outcome outcome =
        search_.Extract([&](std::span<const std::uint8_t> encoded) {
          frame.bytes_ = DecodeFrame(encoded, frame.storage_);
        });
    if (outcome.found) {
      if (frame.bytes_ == 0) return Result::DecodeFailed;
      sightings_.SawFrame(frame.Bytes(), frame.order_);
      return Result::Success;
    }
    // Once a chunk, of which a long frame has many.
    remainingMs = deadline.RemainingMs();
    timeLeft = remainingMs > 0;
    if (!timeLeft && outcome.flagSeen && !extended) {
      deadline.ExtendFromNow(kStartedFrameExtensionMs);
      remainingMs = kStartedFrameExtensionMs;
      timeLeft = extended = true;
    }
  }
  return OrEnded(Result::NoFrame);
}

Result PhoneLink::ReceiveStartFrame(std::span<std::uint8_t, kHeaderBytes> header,
                                    std::uint32_t timeoutMs) {
  const auto pattern = StartFrame(Order());
  const auto otherPattern = StartFrame(Order().IsBig() ? ByteOrder::Little() : ByteOrder::Big());
  sightings_.BeginWait();
  const Deadline deadline = StartDeadline(timeoutMs);
  std::array<std::uint8_t, kMaxFrameBytes> chunk;
  while (!deadline.Passed()) {
    std::size_t got = 0;
    if (!Succeeded(Read(chunk, deadline.limit_, deadline.RemainingMs(), got))) continue;
    ring_.Append(std::span<const std::uint8_t>(chunk).first(got));
    bool found = false;
    ring_.Visit([&](std::span<const std::uint8_t> held, std::uint64_t) {
      const auto other =
          std::search(held.begin(), held.end(), otherPattern.begin(), otherPattern.end());
      if (other != held.end()) sightings_.SawStartFrame(true);
      return SearchStartFrame(held, pattern, found);
    });
    if (!found) continue;
    std::ranges::copy(std::span(pattern).subspan<1, kHeaderBytes>(), header.begin());
    NoteCame(IdOf(header), 0);
    usefulLog_.Received(header);
    ring_.Clear();
    return Result::Success;
  }
  return OrEnded(Result::NoUsefulData);
}

Result PhoneLink::ReceiveMulti(FrameId id, std::uint8_t* const* buffers, std::uint32_t maxCount,
                               std::uint32_t bufferBytes, std::uint32_t* count,
                               std::uint32_t* lengths, std::uint32_t timeoutMs) {
  // The first buffer's first byte is tested: a zero-filled one is refused.
  if (!buffers || !buffers[0] || buffers[0][0] == 0 || !count || !lengths) {
    return Result::InvalidParam;
  }
  const Deadline deadline = StartDeadline(timeoutMs);
  std::uint32_t received = 0;
  while (!deadline.Passed()) {
    const Frame frame = ReceiveTyped(deadline.RemainingMs());
    if (!frame || frame.Id() != id) continue;
    // Taken as established: index maxCount is still filled, so callers hold one entry more.
    const auto length = static_cast<std::uint32_t>(frame.Bytes().size());
    if (received > maxCount || length > bufferBytes) return Result::BufferTooSmall;
    std::ranges::copy(frame.Bytes(), buffers[received]);
    lengths[received] = length;
    ++received;
    NoteCame(id, frame.Payload().size());
    usefulLog_.Received(frame.Bytes());
  }
  *count = received;
  return OrEnded(received < 1 ? Result::NoData : Result::Success);
}

LinkEvidence PhoneLink::Evidence() const {
  LinkEvidence evidence = channel_.Opened();
  evidence.deviceGone = deviceGone_;
  evidence.sightings = sightings_;
  return evidence;
}

}  // namespace merovane
