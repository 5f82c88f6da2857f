// The command that reads and writes a byte range of one item of the handset's calibration data, in
// its working copy in RAM or its stored copy in flash. Radio test settings and measurements are
// items of the same kind.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "commands/operation.h"
#include "link/frame_codec.h"
#include "link/phone_link.h"
#include "link/result.h"

namespace merovane::commands {

enum class Storage : std::uint16_t { Ram = 0, Flash = 1 };

// What data is made of: numbers travel in the handset's byte order, bytes as they are.
enum class Element : std::uint8_t { Byte, U16, U32 };

struct DataAddress {
  Storage storage = Storage::Ram;
  std::uint16_t band = 0;
  std::uint16_t item = 0;
  std::uint16_t offset = 0;  // in elements
};

inline constexpr FrameId kWriteData{32, 0};
inline constexpr FrameId kReadData{32, 1};
inline constexpr std::uint32_t kDataTimeoutMs = 1000;
inline constexpr std::size_t kDataHeaderBytes = 10;
inline constexpr std::size_t kMaxDataBytes = kMaxPayloadBytes - kDataHeaderBytes;

// `data` is in this machine's byte order and at most kMaxDataBytes long, here and below.
Answer AskWritingData(PhoneLink& link, const DataAddress& address,
                      std::span<const std::uint8_t> data, Element element, std::uint32_t timeoutMs);

// The arrival of an answer is what counts.
Result WriteData(PhoneLink& link, const DataAddress& address, std::span<const std::uint8_t> data,
                 Element element, std::uint32_t timeoutMs = kDataTimeoutMs);
Result WriteWord(PhoneLink& link, const DataAddress& address, std::uint16_t value);

// Fills `data` as far as the answer goes, the rest stays as it was. WrongDataLength when the answer
// carries nothing.
Result ReadData(PhoneLink& link, const DataAddress& address, std::span<std::uint8_t> data,
                Element element, std::uint32_t timeoutMs = kDataTimeoutMs);
// 0 stands for bytes that the answer lacks; `value` is written on success only.
Result ReadWord(PhoneLink& link, const DataAddress& address, std::uint16_t& value,
                std::uint32_t timeoutMs);

}  // namespace merovane::commands
