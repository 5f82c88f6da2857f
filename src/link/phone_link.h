// One connection to one handset: the exchanges on which every command is built.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "link/byte_order.h"
#include "link/byte_ring.h"
#include "link/channel_port.h"
#include "link/frame.h"
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
  // Bytes as they are.
  Result WriteRaw(std::span<const std::uint8_t> data);

  // Sends, then waits for a frame of the awaited type and subtype, timeoutMs plus the configured
  // increment. Without an answer: what sending gave; 39 as soon as a frame of the awaited type with
  // subtype 2 comes (unless that is the awaited one); 11 when the time is up.
  Answer SendAndWait(FrameId request, FrameId awaited, std::span<const std::uint8_t> payload,
                     std::uint32_t timeoutMs);
  // The answer has the request's type and subtype.
  Answer SendAndWaitSame(FrameId id, std::span<const std::uint8_t> payload,
                         std::uint32_t timeoutMs);
  // The wait alone, without the increment.
  Answer WaitForAnswer(FrameId awaited, std::uint32_t timeoutMs);
  // The wait alone, for as long as the increment; a negative one counts as 0.
  Answer WaitForIncrement(FrameId awaited);

  // The next whole frame. 9 when the time ran out with something arriving; else the channel's code.
  Frame ReceiveFrame(std::uint32_t timeoutMs);
  // The same; 11 for a frame shorter than a header.
  Frame ReceiveTyped(std::uint32_t timeoutMs);
  // The header of the frame that a handset sends while it boots; 31 when none came. It is looked
  // for in the bytes as they arrive, so that one in the other byte order is none.
  Result ReceiveStartFrame(std::span<std::uint8_t, kHeaderBytes> header, std::uint32_t timeoutMs);

  // Collects, until the time is up, every frame of the type and subtype, whole and header included,
  // into `buffers` of `bufferBytes` each, with `lengths`. Both arrays hold maxCount + 1 entries. 4
  // when the first byte of the first buffer is 0 or `lengths` is null; 5 when a frame or their
  // number is too large; 6 when none came.
  Result ReceiveMulti(FrameId id, std::uint8_t* const* buffers, std::uint32_t maxCount,
                      std::uint32_t bufferBytes, std::uint32_t* count, std::uint32_t* lengths,
                      std::uint32_t timeoutMs);

  // Goes into the sequence field of the next frame only.
  void SetNextSequence(std::uint32_t value) { nextSequence_ = value; }

  // The handset's, for fields of payloads.
  ByteOrder Order() const { return CurrentByteOrder(); }
  void Sleep(std::uint32_t ms) { clock_.SleepMs(ms); }
  platform::Deadline StartDeadline(std::uint32_t limitMs) const { return {clock_, limitMs}; }

  // Results are reported under this id from now on.
  void BeginOperation(std::uint32_t id) { settings_.errors.BeginOperation(id); }

  // True once after the handset reported an assert.
  bool IsAssert() { return channel_.TakeAssert(); }

  // What follows until LogLine goes when nothing uses it any more: link insides, and exchanges that
  // copy what they receive to a caller's buffer.
  Result SendAndWait(FrameId request, FrameId awaited, std::span<const std::uint8_t> payload,
                     std::span<std::uint8_t> answer, std::uint32_t* answerLength,
                     std::uint32_t timeoutMs);
  Result WaitForAnswer(FrameId awaited, std::span<std::uint8_t> answer, std::uint32_t* answerLength,
                       std::uint32_t timeoutMs);
  Result ReceiveFrame(std::span<std::uint8_t> output, std::uint32_t& length,
                      std::uint32_t timeoutMs);
  Result ReceiveTyped(FrameId& id, std::span<std::uint8_t> output, std::uint32_t& length,
                      std::uint32_t timeoutMs);
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
  Result Receive(Frame& frame, std::uint32_t timeoutMs);
  Result Receive(Frame& frame, FrameId awaited, std::uint32_t timeoutMs);
  std::uint32_t WithIncrement(std::uint32_t timeoutMs) const;
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
