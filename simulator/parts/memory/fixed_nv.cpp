#include "parts/memory/fixed_nv.h"

#include <algorithm>

namespace handset {
namespace {

constexpr const char* kItem = "fixed-nv";
constexpr std::uint8_t kImeiMark = 0x0A;  // an IMEI, and an odd number of digits

std::uint8_t Digit(char c) { return static_cast<std::uint8_t>(c - '0'); }

}  // namespace

Bytes FixedNv(Storage& flash) {
  const Bytes* stored = flash.Find(kItem);
  Bytes block = stored != nullptr ? *stored : Bytes();
  block.resize(kFixedNvBytes);
  return block;
}

Bytes ReadFixedNv(Storage& flash, FixedNvField field) {
  Bytes block = FixedNv(flash);
  const auto first = block.begin() + static_cast<std::ptrdiff_t>(field.offset);
  return {first, first + static_cast<std::ptrdiff_t>(field.bytes)};
}

void WriteFixedNv(Storage& flash, FixedNvField field, std::span<const std::uint8_t> bytes) {
  Bytes block = FixedNv(flash);
  std::copy_n(bytes.begin(), std::min(bytes.size(), field.bytes),
              block.begin() + static_cast<std::ptrdiff_t>(field.offset));
  flash.Put(kItem, std::move(block));
}

Bytes PackImei(const std::string& digits) {
  Bytes packed(kImei1.bytes);
  packed[0] = static_cast<std::uint8_t>(Digit(digits.at(0)) << 4 | kImeiMark);
  for (std::size_t i = 1; i < packed.size(); ++i) {
    packed[i] =
        static_cast<std::uint8_t>(Digit(digits.at(2 * i)) << 4 | Digit(digits.at(2 * i - 1)));
  }
  return packed;
}

std::string ImeiText(const Bytes& packed) {
  std::string digits;
  const auto put = [&](int nibble) { digits += static_cast<char>('0' + std::min(nibble, 9)); };
  put(packed.at(0) >> 4);
  for (std::size_t i = 1; i < kImei1.bytes; ++i) {
    put(packed.at(i) & 0xF);
    put(packed.at(i) >> 4);
  }
  return digits;
}

}  // namespace handset
