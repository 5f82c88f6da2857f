// One connection to one handset: the exchanges on which every command is built.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "link/byte_ring.h"
#include "link/channel_port.h"
#include "link/frame_codec.h"
#include "link/frame_search.h"
#include "link/port_log.h"
#include "link/result.h"
#include "link/settings.h"
#include "platform/clock.h"

namespace merovane {

// Large enough for any frame's payload.
using AnswerBuffer = std::array<std::uint8_t, kMaxFrameBytes>;

class PhoneLink {
 public:
  explicit PhoneLink(LinkSettings& settings, platform::Clock& clock = platform::SystemClock(),
                     ChannelLibrary library = {});

  Result Open(std::int32_t port, std::int32_t baudRate);
  Result Close();
  bool IsOpen() const { return channel_.IsOpen(); }

  // Frames the payload and writes it. What arrived before is dropped first, so that an answer is
  // looked for only in bytes that came after its request.
  Result SendFrame(FrameId id, std::span<const std::uint8_t> payload = {});

  // Sends, then waits for a frame of the awaited type and subtype, timeoutMs plus the configured
  // increment. The payload is cut to the buffer without error; answerLength is always
  // the whole payload's. 4, and nothing sent, for an empty buffer or a null length; 39 as soon as a
  // frame of the awaited type with subtype 2 comes (unless that is the awaited one); 11 when the
  // time is up.
  Result SendAndWait(FrameId request, FrameId awaited, std::span<const std::uint8_t> payload,
                     std::span<std::uint8_t> answer, std::uint32_t* answerLength,
                     std::uint32_t timeoutMs);
  // The answer has the request's type and subtype, and only its arrival matters.
  Result SendAndWaitSame(FrameId id, std::span<const std::uint8_t> payload,
                         std::uint32_t timeoutMs);
  // The wait alone, without the increment.
  Result WaitForAnswer(FrameId awaited, std::span<std::uint8_t> answer, std::uint32_t* answerLength,
                       std::uint32_t timeoutMs);

  // The next whole frame, decoded, header included. 5 when it was cut to the output; 8 when it does
  // not decode; 9 when the time ran out with something arriving; else the channel's code.
  Result ReceiveFrame(std::span<std::uint8_t> output, std::uint32_t& length,
                      std::uint32_t timeoutMs);
  // The same, and its type and subtype; 11 for a frame shorter than a header.
  Result ReceiveTyped(FrameId& id, std::span<std::uint8_t> output, std::uint32_t& length,
                      std::uint32_t timeoutMs);

  // Collects, until the time is up, every frame of the type and subtype, whole and header included,
  // into `buffers` of `bufferBytes` each, with `lengths`. Both arrays hold maxCount + 1 entries. 4
  // when the first byte of the first buffer is 0 or `lengths` is null; 5 when a frame or their
  // number is too large; 6 when none came.
  Result ReceiveMulti(FrameId id, std::uint8_t* const* buffers, std::uint32_t maxCount,
                      std::uint32_t bufferBytes, std::uint32_t* count, std::uint32_t* lengths,
                      std::uint32_t timeoutMs);

  // Goes into the sequence field of the next frame only.
  void SetNextSequence(std::uint32_t value) { nextSequence_ = value; }

  // True once after the handset reported an assert.
  bool IsAssert() { return channel_.TakeAssert(); }

  ChannelPort& Channel() { return channel_; }
  // Bytes received and not yet taken as frames.
  ByteRing& FrameRing() { return ring_; }
  LinkSettings& Settings() { return settings_; }
  platform::Clock& Clock() { return clock_; }

  // The Useful log, silent when it is off.
  void LogLine(std::string_view text);
  void LogResult(Result result);
  void LogReceived(std::span<const std::uint8_t> decodedFrame);

 private:
  PortLog* UsefulLog() const { return settings_.usefulLog ? usefulLog_.get() : nullptr; }

  LinkSettings& settings_;
  platform::Clock& clock_;
  ChannelPort channel_;
  ByteRing ring_;
  FrameSearch search_{ring_};
  std::unique_ptr<PortLog> usefulLog_;
  std::uint32_t nextSequence_ = 0;
};

}  // namespace merovane
