// A handset in this process that follows a script, at the other end of a faked channel:
//   handset.Expect(13, 2, "00 05 00 04").Answer(13, 0, "00 05 00 04 01 02 03 04");
// Its frames are the simulated handset's, which shares no code with the library.
#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "link/serial_channel.h"
#include "support/bytes.h"
#include "support/fake_clock.h"
#include "wire/journal.h"

namespace merovane::test {

// The bytes of a frame on the wire. The length field is taken in 16 bits.
Bytes WireFrame(bool bigEndian, std::uint8_t type, std::uint8_t subtype, const Bytes& payload,
                std::uint32_t sequence = 0);

// What a handset says at once.
struct Piece {
  Bytes bytes;
  std::uint32_t delayMs = 0;  // after the piece before it
};

// One expected request and what it is answered with, in order.
class Exchange {
 public:
  Exchange& Answer(std::uint8_t type, std::uint8_t subtype, const Payload& payload = {});
  // The request's type with subtype 2.
  Exchange& Refuse() { return Answer(type_, 2); }
  // Bytes as they are.
  Exchange& Raw(const Payload& bytes);
  // Nothing comes: for the reader of the test.
  Exchange& Silent() { return *this; }
  // What follows comes that much later than what stands before it.
  Exchange& After(std::uint32_t ms);
  // The request must carry this in its sequence field; it is 0 otherwise.
  Exchange& Sequence(std::uint32_t value);
  // The channel takes the request only in part.
  Exchange& WriteFails();

 private:
  friend class ScriptedHandset;
  bool bigEndian_ = true;
  bool raw_ = false;
  std::uint8_t type_ = 0;
  std::uint8_t subtype_ = 0;
  std::optional<Bytes> payload_;  // none: any
  std::uint32_t sequence_ = 0;
  bool writeFails_ = false;
  std::uint32_t delayMs_ = 0;
  std::vector<Piece> items_;
};

// One at a time exists; links made with Library() reach it. Reads take what is there or is due
// within their limit, and let time pass otherwise. With a receiver set, all that is said is posted
// to it at once.
class ScriptedHandset final : private CassorindChannel {
 public:
  explicit ScriptedHandset(FakeClock& clock);
  ~ScriptedHandset();
  ScriptedHandset(const ScriptedHandset&) = delete;
  ScriptedHandset& operator=(const ScriptedHandset&) = delete;

  static ChannelLibrary Library();

  void SetBigEndian(bool bigEndian) { bigEndian_ = bigEndian; }
  Fields Message() const { return Fields(bigEndian_); }

  // Requests come in the order in which they are expected; any other one fails the test.
  Exchange& Expect(std::uint8_t type, std::uint8_t subtype, const Payload& payload = {});
  // The payload is for the test to look at, in Heard().
  Exchange& ExpectAnyPayload(std::uint8_t type, std::uint8_t subtype);
  // Bytes that are written as they are.
  Exchange& ExpectRaw(const Payload& bytes);

  // Says something unasked: it is there for the next read, or `afterMs` from what was said last.
  void Say(std::uint8_t type, std::uint8_t subtype, const Payload& payload = {},
           std::uint32_t afterMs = 0);
  void SayRaw(const Payload& bytes, std::uint32_t afterMs = 0);

  std::vector<handset::Frame> Heard() const { return heard_.Frames(); }
  // Fails the test when an expected request did not come. The destructor does so too.
  void Verify();
  std::size_t UnreadBytes() const;
  int Clears() const { return clears_; }
  // Reads asked for more than the handset had, so far.
  std::uint32_t LargestRead() const { return largestRead_; }

  // The device.
  void FailCreate(bool fails) { failCreate_ = fails; }
  void FailOpen(bool fails) { failOpen_ = fails; }
  void WhileItOpens(std::function<void()> run) { whileItOpens_ = std::move(run); }
  void SetGone(bool gone) { gone_ = gone; }
  bool IsOpen() const { return open_.has_value(); }
  int ChannelsHeld() const { return channelsHeld_; }
  const CassorindOpenParameters& OpenedWith() const { return openedWith_; }

 private:
  struct Receiver {
    std::uint32_t messageId;
    std::uint32_t threadId;
  };

  std::int32_t SetReceiver(std::uint32_t messageId, std::int32_t enabled,
                           std::uint32_t threadId) override;
  std::int32_t Open(const CassorindOpenParameters* parameters) override;
  std::int32_t Close() override;
  std::int32_t Clear() override;
  std::int32_t Read(void* buffer, std::uint32_t maxBytes, std::uint32_t timeLimitMs,
                    std::uint32_t reserved) override;
  std::int32_t Write(const void* data, std::uint32_t length, std::uint32_t reserved) override;

  bool Hear(const Bytes& written);
  std::optional<handset::Frame> Understand(const Bytes& written) const;
  void Add(Piece piece);
  void PostAll();

  static inline ScriptedHandset* current_ = nullptr;

  FakeClock& clock_;
  mutable std::recursive_mutex mutex_;
  bool bigEndian_ = true;
  std::deque<Exchange> script_;
  std::deque<Piece> pieces_;
  std::uint32_t lastPieceTakenMs_ = 0;
  handset::Journal heard_;
  std::list<Bytes> posted_;  // chunks stay readable
  std::optional<Receiver> receiver_;
  std::optional<CassorindOpenParameters> open_;
  CassorindOpenParameters openedWith_{};
  bool failCreate_ = false;
  bool failOpen_ = false;
  std::function<void()> whileItOpens_;
  bool gone_ = false;
  std::atomic<int> channelsHeld_{0};
  int clears_ = 0;
  std::uint32_t largestRead_ = 0;
};

}  // namespace merovane::test
