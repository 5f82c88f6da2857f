// The numbers by which results of NV project operations are reported.
#pragma once

#include <cstdint>

namespace merovane::nvproject::operation {

inline constexpr std::uint32_t kSaveToBinaryFile = 194;
inline constexpr std::uint32_t kGenerateNvBinaryDataBlockInMemory = 195;
inline constexpr std::uint32_t kGetNvValueAgc = 196;
inline constexpr std::uint32_t kSetNvValueAgc = 197;
inline constexpr std::uint32_t kGetNvValueApc = 198;
inline constexpr std::uint32_t kSetNvValueApc = 199;
inline constexpr std::uint32_t kGetNvValueFactor = 198;  // the same as the APC read
inline constexpr std::uint32_t kGetNvValueNvVersion = 200;
inline constexpr std::uint32_t kGetNvValueAdc1 = 201;
inline constexpr std::uint32_t kSetNvValueAdc1 = 202;
inline constexpr std::uint32_t kGetNvValueAdc2 = 203;
inline constexpr std::uint32_t kSetNvValueAdc2 = 204;
inline constexpr std::uint32_t kGetNvValueAfc1 = 205;
inline constexpr std::uint32_t kSetNvValueAfc1 = 206;
inline constexpr std::uint32_t kGetNvValueAfc2 = 207;
inline constexpr std::uint32_t kSetNvValueAfc2 = 208;
inline constexpr std::uint32_t kGetNvValueNvVersionTd = 209;
inline constexpr std::uint32_t kGetNvValue = 214;
inline constexpr std::uint32_t kSetNvValue = 215;
inline constexpr std::uint32_t kGetItemOffsetAndSize = 216;
inline constexpr std::uint32_t kConvertDataByDataType = 217;

}  // namespace merovane::nvproject::operation
