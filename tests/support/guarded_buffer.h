// A caller's buffer between guards: what is written before or after it fails the test.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

#include "support/bytes.h"

namespace merovane::test {

template <typename T>
class GuardedBuffer {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  explicit GuardedBuffer(std::size_t count = 1) : bytes_(2 * kGuard + count * sizeof(T), kFill) {}
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  ~GuardedBuffer() { EXPECT_TRUE(GuardsStand()) << "written outside the buffer"; }

  T* Data() { return reinterpret_cast<T*>(bytes_.data() + kGuard); }
  std::uint32_t Size() const { return static_cast<std::uint32_t>(Inner().size() / sizeof(T)); }
  T& operator[](std::size_t index) { return Data()[index]; }

  bool GuardsStand() const {
    const auto untouched = [](std::uint8_t byte) { return byte == kFill; };
    const std::span<const std::uint8_t> all(bytes_);
    return std::ranges::all_of(all.first(kGuard), untouched) &&
           std::ranges::all_of(all.last(kGuard), untouched);
  }
  // Nothing was written after the first `count` elements either.
  bool UntouchedFrom(std::size_t count) const {
    return GuardsStand() && std::ranges::all_of(Inner().subspan(count * sizeof(T)),
                                                [](std::uint8_t byte) { return byte == kFill; });
  }
  bool Untouched() const { return UntouchedFrom(0); }
  std::string Hex(std::size_t count) const { return ToHex(Inner().first(count * sizeof(T))); }

 private:
  static constexpr std::size_t kGuard = 64;
  static constexpr std::uint8_t kFill = 0xA5;

  std::span<const std::uint8_t> Inner() const {
    return std::span<const std::uint8_t>(bytes_).subspan(kGuard, bytes_.size() - 2 * kGuard);
  }

  std::vector<std::uint8_t> bytes_;
};

}  // namespace merovane::test
