// The handset's byte order: one switch for the process, applied to frame
// lengths and to the 16- and 32-bit fields of payloads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace merovane {

void SetBigEndian(bool bigEndian);
bool BigEndian();

// The value with its bytes reversed when the handset is big-endian, else the value.
std::uint16_t Swap16(std::uint16_t value);
std::uint32_t Swap32(std::uint32_t value);

// Fields of a payload in the handset's byte order. The offset must lie inside.
void PutU16(std::span<std::uint8_t> payload, std::size_t offset, std::uint16_t value);
void PutU32(std::span<std::uint8_t> payload, std::size_t offset, std::uint32_t value);
std::uint16_t GetU16(std::span<const std::uint8_t> payload, std::size_t offset);
std::uint32_t GetU32(std::span<const std::uint8_t> payload, std::size_t offset);

// Fields that are most significant byte first whatever the switch says.
void PutU32BigEndian(std::span<std::uint8_t> payload, std::size_t offset, std::uint32_t value);

// Converts an array of fields in place; an odd rest is left as it is.
void SwapArray16(std::span<std::uint8_t> data);
void SwapArray32(std::span<std::uint8_t> data);

}  // namespace merovane
