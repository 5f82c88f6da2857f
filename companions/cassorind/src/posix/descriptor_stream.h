// A stream over a non-blocking descriptor, which ttys and sockets have in common.
#pragma once

#include "byte_stream.h"

namespace cassorind {

class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  Descriptor(Descriptor&& other) noexcept : value_(other.value_) { other.value_ = -1; }
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor();
  int Get() const { return value_; }
  bool IsValid() const { return value_ >= 0; }

 private:
  int value_;
};

class DescriptorStream : public ByteStream {
 public:
  explicit DescriptorStream(Descriptor descriptor) : descriptor_(std::move(descriptor)) {}
  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                    const companions::StopSignal& stop) override;
  std::size_t Write(std::span<const std::byte> data, const companions::StopSignal& stop) override;

 protected:
  int Get() const { return descriptor_.Get(); }

 private:
  // One bare system call: as write(2).
  virtual std::ptrdiff_t WriteSome(std::span<const std::byte> data) = 0;

  Descriptor descriptor_;
};

}  // namespace cassorind
