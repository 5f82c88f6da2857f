// A channel whose data a thread of its own fetches as it comes, so that listeners have it whether
// or not a command reads.
#pragma once

#include <memory>

#include "link/channel.h"
#include "link/channel_server.h"
#include "link/serial_channel.h"
#include "link/tapped_channel.h"
#include "platform/thread.h"

namespace merovane {

class ThreadedChannel final : public Channel {
 public:
  // Starts the thread, to which `device` and the server then post; null when the system gives none.
  // `line` is what writes go to, with `device` at its end.
  static std::unique_ptr<ThreadedChannel> Start(std::shared_ptr<TappedChannel> line,
                                                SerialChannel& device,
                                                std::shared_ptr<ServerConnection> server);
  ~ThreadedChannel() override;

  Result Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs, std::size_t& got) override;
  Result Write(std::span<const std::uint8_t> data) override;
  // What the thread has fetched, and what it has still to fetch.
  void DropReceived() override;
  void Close() override;

 private:
  // What the thread works on. It shares it, so that a thread that had to be given up harms nobody.
  struct Reception;

  explicit ThreadedChannel(std::shared_ptr<Reception> reception);
  void Stop();

  const std::shared_ptr<Reception> reception_;
  platform::Thread thread_;
};

}  // namespace merovane
