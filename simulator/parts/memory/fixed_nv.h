// The fixed-NV information block: what makes one handset different from the next. Several parts
// of the handset read and write its fields.
#pragma once

#include <array>
#include <span>
#include <string>

#include "firmware/storage.h"

namespace handset {

struct FixedNvField {
  std::size_t offset;
  std::size_t bytes;
};

inline constexpr std::size_t kFixedNvBytes = 106;
inline constexpr FixedNvField kImei1{0, 8};
inline constexpr FixedNvField kImei2{8, 8};
inline constexpr FixedNvField kBluetoothAddress{16, 6};  // last byte first
inline constexpr FixedNvField kGpsBlock{22, 44};
inline constexpr FixedNvField kWifiAddress{66, 6};  // first byte first
inline constexpr FixedNvField kImei3{74, 8};
inline constexpr FixedNvField kImei4{82, 8};
inline constexpr std::array kImeis{kImei1, kImei2, kImei3, kImei4};

// A blank handset holds zeros.
Bytes FixedNv(Storage& flash);
Bytes ReadFixedNv(Storage& flash, FixedNvField field);
// Fewer bytes than the field has leave its end as it was.
void WriteFixedNv(Storage& flash, FixedNvField field, std::span<const std::uint8_t> bytes);

// Fifteen digits: the first in the high nibble of the first byte, then low nibbles first.
Bytes PackImei(const std::string& digits);
std::string ImeiText(const Bytes& packed);

}  // namespace handset
