// The byte channel of one port: the serial channel of the channel library, its
// receive thread when there is one, its All log and the recording of received data.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>

#include "cassorind/cassorind.h"
#include "link/byte_ring.h"
#include "link/channel_server.h"
#include "link/port_log.h"
#include "link/result.h"
#include "link/settings.h"
#include "platform/clock.h"
#include "platform/event.h"
#include "platform/files.h"
#include "platform/thread.h"

namespace merovane {

// Message that carries data from the serial channel.
inline constexpr std::uint32_t kChannelDataMessage = 1124;

// Where channels come from; tests put their own in place of the channel library.
struct ChannelLibrary {
  std::int32_t(COMPANION_CALL* create)(CassorindChannel**, std::uint32_t kind) = CreateChannel;
  void(COMPANION_CALL* release)(CassorindChannel*) = ReleaseChannel;
};

class ChannelPort {
 public:
  ChannelPort(LinkSettings& settings, platform::Clock& clock, ChannelLibrary library);
  ~ChannelPort();
  ChannelPort(const ChannelPort&) = delete;
  ChannelPort& operator=(const ChannelPort&) = delete;

  // 4 for a port or baud rate below 1, 2 when the channel cannot be made or opened.
  Result Open(std::int32_t port, std::int32_t baudRate);
  // 1 when it is not open.
  Result Close();
  bool IsOpen() const { return channel_ != nullptr; }

  // Waits until at least one byte is there and takes what is there, at most the buffer's
  // size. 6 when nothing came in time, 1 when the port is not open.
  Result Read(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs, std::size_t& got);
  // 3 when the channel did not take all, 1 when the port is not open.
  Result Write(std::span<const std::uint8_t> data);
  // Purges what was received and not read.
  Result Clear();
  // The same for what the receive thread has fetched.
  void ClearThreadRing();

  // True once after an assert report was seen. For any thread.
  bool TakeAssert();

  // While this event is set, reads end at once with 6; null takes it away.
  void SetCancel(platform::Event* cancel) { cancel_ = cancel; }
  bool Cancelled() const { return cancel_ && cancel_->IsSet(); }

 private:
  // What the receive thread works on. It shares it, so that a thread that had to be given up harms
  // nobody.
  struct Reception;

  bool StartReceiveThread();
  void StopReceiveThread();
  Result ReadOnce(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs, std::size_t& got);
  Result ReadChannel(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs, std::size_t& got);
  Result ReadThreadRing(std::span<std::uint8_t> buffer, std::uint32_t timeLimitMs,
                        std::size_t& got);
  void AvoidSpinning(std::uint32_t timeLimitMs);

  LinkSettings& settings_;
  platform::Clock& clock_;
  ChannelLibrary library_;
  std::shared_ptr<CassorindChannel> channel_;
  std::shared_ptr<Reception> reception_;
  std::shared_ptr<PortLog> allLog_;
  std::shared_ptr<platform::AppendFile> recording_;
  platform::Thread receiveThread_;
  // Shared with the receive thread; stays until it is taken, also when the port is closed
  // meanwhile.
  const std::shared_ptr<std::atomic<bool>> asserted_ = std::make_shared<std::atomic<bool>>(false);
  platform::Event* cancel_ = nullptr;
};

}  // namespace merovane
