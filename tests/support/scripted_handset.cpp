#include "support/scripted_handset.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/message_queue.h"

namespace merovane::test {

Bytes WireFrame(bool bigEndian, std::uint8_t type, std::uint8_t subtype, const Bytes& payload,
                std::uint32_t sequence) {
  return handset::EncodeFrame({type, subtype, payload, sequence}, OrderOf(bigEndian));
}

Exchange& Exchange::Answer(std::uint8_t type, std::uint8_t subtype, const Payload& payload) {
  return Raw(WireFrame(bigEndian_, type, subtype, payload.Get()));
}

Exchange& Exchange::Raw(const Payload& bytes) {
  items_.push_back({bytes.Get(), std::exchange(delayMs_, 0)});
  return *this;
}

Exchange& Exchange::After(std::uint32_t ms) {
  delayMs_ = ms;
  return *this;
}

Exchange& Exchange::Sequence(std::uint32_t value) {
  sequence_ = value;
  return *this;
}

Exchange& Exchange::WriteFails() {
  writeFails_ = true;
  return *this;
}

ScriptedHandset::ScriptedHandset(FakeClock& clock) : clock_(clock), heard_(100'000) {
  current_ = this;
}

ScriptedHandset::~ScriptedHandset() {
  Verify();
  EXPECT_EQ(channelsHeld_, 0) << "a channel was not released";
  current_ = nullptr;
}

ChannelLibrary ScriptedHandset::Library() {
  return {[](CassorindChannel** channel, std::uint32_t kind) -> std::int32_t {
            EXPECT_EQ(kind, 0u);
            if (!current_ || current_->failCreate_) return 0;
            ++current_->channelsHeld_;
            // A new channel posts to nobody.
            current_->receiver_.reset();
            *channel = current_;
            return 1;
          },
          [](CassorindChannel* channel) {
            ASSERT_EQ(channel, static_cast<CassorindChannel*>(current_));
            --current_->channelsHeld_;
          }};
}

Exchange& ScriptedHandset::Expect(std::uint8_t type, std::uint8_t subtype, const Payload& payload) {
  const std::lock_guard lock(mutex_);
  Exchange& exchange = script_.emplace_back();
  exchange.bigEndian_ = bigEndian_;
  exchange.type_ = type;
  exchange.subtype_ = subtype;
  exchange.payload_ = payload.Get();
  return exchange;
}

Exchange& ScriptedHandset::ExpectAnyPayload(std::uint8_t type, std::uint8_t subtype) {
  Exchange& exchange = Expect(type, subtype);
  exchange.payload_.reset();
  return exchange;
}

Exchange& ScriptedHandset::ExpectRaw(const Payload& bytes) {
  Exchange& exchange = Expect(0, 0, bytes);
  exchange.raw_ = true;
  return exchange;
}

void ScriptedHandset::Say(std::uint8_t type, std::uint8_t subtype, const Payload& payload,
                          std::uint32_t afterMs) {
  SayRaw(WireFrame(bigEndian_, type, subtype, payload.Get()), afterMs);
}

void ScriptedHandset::SayRaw(const Payload& bytes, std::uint32_t afterMs) {
  const std::lock_guard lock(mutex_);
  Add({bytes.Get(), afterMs});
  PostAll();
}

void ScriptedHandset::Verify() {
  const std::lock_guard lock(mutex_);
  for (const Exchange& exchange : script_) {
    ADD_FAILURE() << "never came: " << int{exchange.type_} << "/" << int{exchange.subtype_} << " ["
                  << ToHex(exchange.payload_.value_or(Bytes())) << "]";
  }
  script_.clear();
}

std::size_t ScriptedHandset::UnreadBytes() const {
  const std::lock_guard lock(mutex_);
  std::size_t bytes = 0;
  for (const Piece& piece : pieces_) bytes += piece.bytes.size();
  return bytes;
}

std::int32_t ScriptedHandset::SetReceiver(std::uint32_t messageId, std::int32_t enabled,
                                          std::uint32_t threadId) {
  const std::lock_guard lock(mutex_);
  receiver_.reset();
  if (enabled != 0) receiver_ = Receiver{messageId, threadId};
  PostAll();
  return 1;
}

std::int32_t ScriptedHandset::Open(const CassorindOpenParameters* parameters) {
  const std::lock_guard lock(mutex_);
  EXPECT_FALSE(open_) << "opened twice";
  openedWith_ = *parameters;
  if (whileItOpens_) whileItOpens_();
  if (failOpen_) return 0;
  open_ = openedWith_;
  gone_ = false;
  PostAll();
  return 1;
}

std::int32_t ScriptedHandset::Close() {
  const std::lock_guard lock(mutex_);
  const bool was = open_.has_value();
  open_.reset();
  return was ? 1 : 0;
}

std::int32_t ScriptedHandset::Clear() {
  const std::lock_guard lock(mutex_);
  ++clears_;
  while (!pieces_.empty() && clock_.NowMs() - lastPieceTakenMs_ >= pieces_.front().delayMs) {
    lastPieceTakenMs_ += pieces_.front().delayMs;
    pieces_.pop_front();
  }
  return 1;
}

std::int32_t ScriptedHandset::Read(void* buffer, std::uint32_t maxBytes, std::uint32_t timeLimitMs,
                                   std::uint32_t) {
  const std::lock_guard lock(mutex_);
  largestRead_ = std::max(largestRead_, maxBytes);
  if (!open_ || gone_) return -1;
  if (!pieces_.empty()) {
    Piece& piece = pieces_.front();
    const std::uint32_t waited = clock_.NowMs() - lastPieceTakenMs_;
    const std::uint32_t waitMs = piece.delayMs > waited ? piece.delayMs - waited : 0;
    if (waitMs <= timeLimitMs) {
      clock_.SleepMs(waitMs);
      lastPieceTakenMs_ = clock_.NowMs();
      piece.delayMs = 0;
      const std::size_t count = std::min<std::size_t>(maxBytes, piece.bytes.size());
      std::copy_n(piece.bytes.begin(), count, static_cast<std::uint8_t*>(buffer));
      piece.bytes.erase(piece.bytes.begin(),
                        piece.bytes.begin() + static_cast<std::ptrdiff_t>(count));
      if (piece.bytes.empty()) pieces_.pop_front();
      return static_cast<std::int32_t>(count);
    }
  }
  clock_.SleepMs(timeLimitMs);
  return 0;
}

std::int32_t ScriptedHandset::Write(const void* data, std::uint32_t length, std::uint32_t) {
  const std::lock_guard lock(mutex_);
  if (!open_ || gone_) return 0;
  const auto* bytes = static_cast<const std::uint8_t*>(data);
  const bool taken = Hear(Bytes(bytes, bytes + length));
  PostAll();
  return static_cast<std::int32_t>(taken ? length : length - 1);
}

// False when the channel is to take the bytes only in part.
bool ScriptedHandset::Hear(const Bytes& written) {
  const bool raw = !script_.empty() && script_.front().raw_;
  std::optional<handset::Frame> frame;
  if (!raw) {
    frame = Understand(written);
    if (!frame) return true;
    heard_.Add(*frame);
  }
  if (script_.empty()) {
    ADD_FAILURE() << "unexpected request: " << ToHex(written);
    return true;
  }
  const Exchange exchange = std::move(script_.front());
  script_.pop_front();
  if (raw) {
    EXPECT_EQ(ToHex(written), ToHex(*exchange.payload_)) << "written as it is";
  } else {
    EXPECT_EQ(int{frame->type}, int{exchange.type_}) << "type of " << ToHex(written);
    EXPECT_EQ(int{frame->subtype}, int{exchange.subtype_}) << "subtype of " << ToHex(written);
    EXPECT_EQ(frame->sequence, exchange.sequence_) << "sequence of " << ToHex(written);
    if (exchange.payload_) {
      EXPECT_EQ(ToHex(frame->payload), ToHex(*exchange.payload_))
          << "payload of " << int{frame->type} << "/" << int{frame->subtype};
    }
  }
  if (exchange.writeFails_) return false;
  for (const Piece& piece : exchange.items_) Add(piece);
  return true;
}

std::optional<handset::Frame> ScriptedHandset::Understand(const Bytes& written) const {
  std::optional<handset::Frame> frame;
  handset::FrameDecoder decoder(
      OrderOf(bigEndian_), [&](handset::Frame heard) { frame = std::move(heard); },
      [&](std::string_view reason, const Bytes&) { ADD_FAILURE() << reason; });
  decoder.Feed(written);
  // One frame, with nothing before or after it.
  if (!frame || handset::EncodeFrame(*frame, OrderOf(bigEndian_)) != written) {
    ADD_FAILURE() << "not a frame: " << ToHex(written);
    return std::nullopt;
  }
  return frame;
}

void ScriptedHandset::Add(Piece piece) {
  if (pieces_.empty()) lastPieceTakenMs_ = clock_.NowMs();
  pieces_.push_back(std::move(piece));
}

void ScriptedHandset::PostAll() {
  if (!receiver_ || !open_) return;
  for (Piece& piece : pieces_) {
    const Bytes& chunk = posted_.emplace_back(std::move(piece.bytes));
    if (chunk.empty()) continue;
    EXPECT_TRUE(platform::PostMessageToThread(receiver_->threadId, receiver_->messageId,
                                              reinterpret_cast<std::uintptr_t>(chunk.data()),
                                              static_cast<std::intptr_t>(chunk.size())));
  }
  pieces_.clear();
}

}  // namespace merovane::test
