// One connection to one handset: the exchanges on which every command is built.
#pragma once

#include <atomic>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "link/byte_order.h"
#include "link/byte_ring.h"
#include "link/channel_port.h"
#include "link/exchange.h"
#include "link/frame.h"
#include "link/frame_codec.h"
#include "link/frame_search.h"
#include "link/link_environment.h"
#include "link/link_evidence.h"
#include "link/result.h"
#include "link/useful_log.h"
#include "platform/clock.h"
#include "platform/event.h"

namespace merovane {

// For one thread at a time, but for what says otherwise.
class PhoneLink {
 public:
  explicit PhoneLink(LinkEnvironment& environment, platform::Clock& clock = platform::SystemClock(),
                     ChannelLibrary library = {});

  Result Open(std::int32_t port, std::int32_t baudRate);
  Result Close();
  bool IsOpen() const { return channel_.IsOpen(); }
  // The one that was opened last, 0 before. For any thread.
  std::int32_t Port() const { return usefulLog_.Port(); }

  // For good: whatever waits on this link returns at once, and so does all that is begun
  // afterwards, with 1. For any thread; the link is closed as always.
  void End() { ended_ = true; }
  // Whether something was cut short, or not begun, because of that.
  bool WasCutShort() const { return cutShort_; }

  // While one of these stands, waits end at once when its event is set.
  class CancelScope {
   public:
    CancelScope(PhoneLink& link, const platform::Event& cancel) : link_(link) {
      link_.cancel_ = &cancel;
    }
    ~CancelScope() { link_.cancel_ = nullptr; }
    CancelScope(const CancelScope&) = delete;
    CancelScope& operator=(const CancelScope&) = delete;

   private:
    PhoneLink& link_;
  };

  // While one of these stands, exchanges are noted in its list; null: nowhere.
  class NoteScope {
   public:
    NoteScope(PhoneLink& link, ExchangeList* exchanges) : link_(link), outer_(link.exchanges_) {
      link_.exchanges_ = exchanges;
    }
    ~NoteScope() { link_.exchanges_ = outer_; }
    NoteScope(const NoteScope&) = delete;
    NoteScope& operator=(const NoteScope&) = delete;

   private:
    PhoneLink& link_;
    ExchangeList* const outer_;
  };

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
  // for in the bytes as they arrive, so that one in the other byte order does not count.
  Result ReceiveStartFrame(std::span<std::uint8_t, kHeaderBytes> header, std::uint32_t timeoutMs);

  // Collects, until the time is up, every frame of the type and subtype, whole and header included,
  // into `buffers` of `bufferBytes` each, with `lengths`. Both arrays hold maxCount + 1 entries. 4
  // when the first byte of the first buffer is 0 or `lengths` is null; 5 when a frame or their
  // number is too large; 6 when none came.
  Result ReceiveMulti(FrameId id, std::uint8_t* const* buffers, std::uint32_t maxCount,
                      std::uint32_t bufferBytes, std::uint32_t* count, std::uint32_t* lengths,
                      std::uint32_t timeoutMs);

  // Goes into the sequence field of the next frame only. For any thread.
  void SetNextSequence(std::uint32_t value) { nextSequence_ = value; }

  // The handset's, for fields of payloads.
  ByteOrder Order() const { return environment_.settings.Order(); }

  // Ends at once when waits are to end.
  void Sleep(std::uint32_t ms);
  // A time limit, which has also passed as soon as waits are to end.
  class Deadline {
   public:
    bool Passed() const { return link_.MustEnd() || limit_.Passed(); }
    std::uint32_t RemainingMs() const { return link_.MustEnd() ? 0 : limit_.RemainingMs(); }

   private:
    friend class PhoneLink;
    Deadline(const PhoneLink& link, std::uint32_t limitMs)
        : link_(link), limit_(link.clock_, limitMs) {}
    const PhoneLink& link_;
    platform::Deadline limit_;
  };
  Deadline StartDeadline(std::uint32_t limitMs) const { return {*this, limitMs}; }
  // The one that time limits go by. For any thread.
  platform::Clock& Clock() const { return clock_; }

  // Results are reported under this id from now on.
  void BeginOperation(std::uint32_t id) { environment_.errors.BeginOperation(id); }

  // True once after the handset reported an assert. For any thread.
  bool IsAssert() { return channel_.TakeAssert(); }

  // What can be told of why the last open or wait failed.
  LinkEvidence Evidence() const;

  // The Useful log, silent when it is off. A line may come from any thread.
  void LogLine(std::string_view text) { usefulLog_.Line(text); }
  void LogResult(Result result) { usefulLog_.Result(result, ResultName(result)); }

 private:
  bool MustEnd() const {
    const platform::Event* const cancel = cancel_;
    return ended_ || (cancel && cancel->IsSet());
  }
  // The result, unless the link has ended.
  Result OrEnded(Result result);
  // Until the deadline, of which remainingMs are left.
  Result Read(std::span<std::uint8_t> into, const platform::Deadline& deadline,
              std::uint32_t remainingMs, std::size_t& got);
  Result Receive(Frame& frame, std::uint32_t timeoutMs);
  Result Receive(Frame& frame, FrameId awaited, std::uint32_t timeoutMs);
  void NoteCame(FrameId id, std::size_t payloadBytes,
                Exchange::Outcome outcome = Exchange::Outcome::Answered) {
    if (exchanges_) exchanges_->Came(id, payloadBytes, outcome);
  }

  LinkEnvironment& environment_;
  platform::Clock& clock_;
  ChannelPort channel_;
  // Bytes received and not yet taken as frames.
  ByteRing ring_;
  FrameSearch search_{ring_};
  UsefulLog usefulLog_;
  ExchangeList* exchanges_ = nullptr;
  Sightings sightings_;
  bool deviceGone_ = false;  // by the last read
  std::atomic<std::uint32_t> nextSequence_{0};
  // Where requests are framed; kept, to spare allocations.
  std::vector<std::uint8_t> sendBuffer_;
  std::atomic<bool> ended_{false};
  bool cutShort_ = false;
  std::atomic<const platform::Event*> cancel_{nullptr};
};

}  // namespace merovane
