// A stream over a non-blocking descriptor, which terminals and sockets have in common.
#pragma once

#include <utility>

#include "platform/byte_stream.h"
#include "platform/posix/posix_api.h"

namespace merovane::platform {

class DescriptorStream : public ByteStream {
 public:
  explicit DescriptorStream(UniqueDescriptor descriptor) : descriptor_(std::move(descriptor)) {}
  std::int32_t Read(std::span<std::byte> buffer, std::uint32_t timeLimitMs,
                    const Event& stop) override;
  std::size_t Write(std::span<const std::byte> data, const Event& stop) override;

 protected:
  int Get() const { return descriptor_.Get(); }

 private:
  // One bare system call: as write(2).
  virtual std::ptrdiff_t WriteSome(std::span<const std::byte> data) = 0;

  UniqueDescriptor descriptor_;
};

}  // namespace merovane::platform
