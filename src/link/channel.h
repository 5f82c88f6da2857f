// A byte stream to one handset, in four operations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "link/result.h"

namespace merovane {

class Channel {
 public:
  Channel() = default;
  Channel(const Channel&) = delete;
  Channel& operator=(const Channel&) = delete;
  virtual ~Channel() = default;

  // Waits until at least one byte is there and takes what is there, at most `into`'s size. 6 when
  // nothing came in time; 27 when nothing will come any more, which may be before the time.
  virtual Result Read(std::span<std::uint8_t> into, std::uint32_t timeLimitMs,
                      std::size_t& got) = 0;
  // 3 when not all of it was taken.
  virtual Result Write(std::span<const std::uint8_t> data) = 0;
  // Drops what this channel has received and nobody has read.
  virtual void DropReceived() = 0;
  // Once, of an open channel.
  virtual void Close() = 0;
};

}  // namespace merovane
