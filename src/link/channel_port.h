// The channel of one port, put together as the settings say when it is opened.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>

#include "link/channel.h"
#include "link/link_environment.h"
#include "link/link_evidence.h"
#include "link/result.h"
#include "link/serial_channel.h"
#include "link/tapped_channel.h"
#include "link/threaded_channel.h"
#include "platform/clock.h"

namespace merovane {

class ChannelPort {
 public:
  ChannelPort(const LinkEnvironment& environment, platform::Clock& clock, ChannelLibrary library);
  ~ChannelPort() { static_cast<void>(Close()); }
  ChannelPort(const ChannelPort&) = delete;
  ChannelPort& operator=(const ChannelPort&) = delete;

  // 4 for a port or baud rate below 1, 2 when the channel cannot be made or opened.
  Result Open(std::int32_t port, std::int32_t baudRate);
  // 1 when it is not open.
  Result Close();
  bool IsOpen() const { return channel_ != nullptr; }

  // As a channel's; 1 when the port is not open.
  Result Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs, std::size_t& got);
  Result Write(std::span<const std::uint8_t> data);
  // Drops what was received and not read: what the channel library holds, or what a receive thread
  // has fetched.
  void DropHeld();
  void DropFetched();

  // What is known of the last open.
  const LinkEvidence& Opened() const { return opened_; }

  // True once after an assert report was seen, also when the port is closed meanwhile. For any
  // thread.
  bool TakeAssert() { return asserted_->exchange(false); }

 private:
  const LinkEnvironment& environment_;
  platform::Clock& clock_;
  const ChannelLibrary library_;
  // The same one twice on a port without a receive thread.
  std::shared_ptr<Channel> line_;
  std::shared_ptr<Channel> channel_;
  LinkEvidence opened_;
  const std::shared_ptr<std::atomic<bool>> asserted_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace merovane
