// A channel of the channel library.
#pragma once

#include <cstdint>
#include <memory>

#include "cassorind/cassorind.h"
#include "link/channel.h"
#include "link/link_evidence.h"
#include "platform/clock.h"

namespace merovane {

// Message that carries data from the channel library.
inline constexpr std::uint32_t kChannelDataMessage = 1124;

// Where channels come from; tests put their own in place of the channel library.
struct ChannelLibrary {
  std::int32_t(COMPANION_CALL* create)(CassorindChannel**, std::uint32_t kind) = CreateChannel;
  void(COMPANION_CALL* release)(CassorindChannel*) = ReleaseChannel;
  // Null: whatever the loaded channel library offers. Others than ours may offer nothing.
  std::int32_t(COMPANION_CALL* explain)(CassorindFailure*) = nullptr;
};

class SerialChannel final : public Channel {
 public:
  // Null when the library makes none.
  static std::unique_ptr<SerialChannel> Make(const ChannelLibrary& library, platform::Clock& clock);
  ~SerialChannel() override;

  bool Open(std::int32_t port, std::int32_t baudRate);
  // After an Open that failed, on the same thread: why, and on which device, as far as is known.
  void ExplainOpening(LinkEvidence& evidence) const;
  // From now on data is not kept for Read but posted to this thread, as messages 1124.
  void PostTo(std::uint32_t threadId);

  Result Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs, std::size_t& got) override;
  Result Write(std::span<const std::uint8_t> data) override;
  void DropReceived() override;
  void Close() override;

 private:
  SerialChannel(const ChannelLibrary& library, platform::Clock& clock)
      : library_(library), clock_(clock) {}

  const ChannelLibrary library_;
  platform::Clock& clock_;
  CassorindChannel* channel_ = nullptr;  // freed through its library
};

}  // namespace merovane
