// The frame format done the slow and obvious way, one byte at a time: what the library's code is
// compared with.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

namespace merovane::test {

using Bytes = std::vector<std::uint8_t>;

// `output` is large enough; returns the bytes written.
inline std::size_t EncodeByteByByte(std::span<const std::uint8_t> raw, std::uint8_t* output) {
  std::size_t count = 0;
  output[count++] = 0x7E;
  for (const std::uint8_t byte : raw) {
    if (byte == 0x7D || byte == 0x7E) {
      output[count++] = 0x7D;
      output[count++] = static_cast<std::uint8_t>(byte ^ 0x20);
    } else {
      output[count++] = byte;
    }
  }
  output[count++] = 0x7E;
  return count;
}

inline std::size_t DecodeByteByByte(std::span<const std::uint8_t> frame, std::uint8_t* output) {
  if (frame.size() < 2 || frame.front() != 0x7E || frame.back() != 0x7E) return 0;
  std::size_t count = 0;
  for (std::size_t i = 1; i < frame.size() - 1; ++i) {
    if (frame[i] == 0x7D) {
      ++i;
      output[count++] = static_cast<std::uint8_t>(frame[i] ^ 0x20);
    } else {
      output[count++] = frame[i];
    }
  }
  return count;
}

// A ring and a walk over it from its start, each time.
class WalkedRing {
 public:
  static constexpr std::size_t kCapacity = 9216;

  void Append(std::span<const std::uint8_t> data) {
    held_.insert(held_.end(), data.begin(), data.end());
    if (held_.size() > kCapacity) Drop(held_.size() - kCapacity);
  }
  void Drop(std::size_t count) {
    held_.erase(held_.begin(), held_.begin() + static_cast<std::ptrdiff_t>(count));
  }
  const Bytes& Held() const { return held_; }

  // The frame, empty when there is none.
  Bytes Extract(bool& flagSeen) {
    flagSeen = false;
    if (held_.size() < 10) return {};
    bool inFrame = false;
    bool complete = false;
    std::size_t start = 0;
    std::size_t lastFlag = 0;
    std::uint8_t previous = 0;
    std::size_t taken = 0;
    while (taken < held_.size() && !complete) {
      const std::uint8_t current = held_[taken++];
      if (inFrame) {
        complete = current == 0x7E;
        continue;
      }
      if (previous == 0x7E && current != 0x7E) {
        start = taken - 2;
        inFrame = true;
      } else {
        previous = current;
      }
      if (current == 0x7E) {
        flagSeen = true;
        lastFlag = taken - 1;
      }
    }
    if (!complete) {
      Drop(flagSeen ? lastFlag : taken);
      return {};
    }
    Bytes frame(held_.begin() + static_cast<std::ptrdiff_t>(start),
                held_.begin() + static_cast<std::ptrdiff_t>(taken));
    Drop(taken);
    return frame;
  }

 private:
  Bytes held_;
};

// Bytes of which one in `oneIn` is a flag or an escape (0: as chance has it).
inline Bytes RandomBytes(std::mt19937& random, std::size_t count, unsigned oneIn = 0) {
  Bytes bytes(count);
  for (std::uint8_t& byte : bytes) {
    byte = static_cast<std::uint8_t>(random());
    if (oneIn != 0 && random() % oneIn == 0) byte = random() % 2 == 0 ? 0x7D : 0x7E;
  }
  return bytes;
}

}  // namespace merovane::test
