// What the exports of calibration items run, once their arguments are checked and their names
// logged.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

#include "commands/calibration/data_command.h"
#include "commands/imei.h"
#include "commands/operation.h"
#include "link/result.h"

namespace merovane::commands {

template <typename T>
inline constexpr Element kElementOf = sizeof(T) == sizeof(std::uint32_t) ? Element::U32
                                                                         : Element::U16;

// Callers' elements need not be aligned.
template <typename T, std::size_t Count>
std::span<std::uint8_t> BytesOf(std::span<T, Count> values) {
  return {reinterpret_cast<std::uint8_t*>(values.data()), values.size_bytes()};
}
template <typename T, std::size_t Count>
std::span<const std::uint8_t> BytesOf(std::span<const T, Count> values) {
  return {reinterpret_cast<const std::uint8_t*>(values.data()), values.size_bytes()};
}

template <typename T, std::size_t Count>
Result ReadItem(Operation& operation, const DataAddress& address, std::span<T, Count> values) {
  return operation.Finish(ReadData(operation.link, address, BytesOf(values), kElementOf<T>));
}

template <typename T, std::size_t Count>
Result WriteItem(Operation& operation, const DataAddress& address, std::span<T, Count> values) {
  const std::span<const T, Count> written = values;
  return operation.Finish(
      WriteData(operation.link, address, BytesOf(written), kElementOf<std::remove_const_t<T>>));
}

template <typename T, std::size_t Count>
Result TransferItem(Operation& operation, std::uint32_t read, const DataAddress& address,
                    std::span<T, Count> values) {
  return read ? ReadItem(operation, address, values) : WriteItem(operation, address, values);
}

Result ReadImeiItem(Operation& operation, const DataAddress& address,
                    std::span<char, kImeiDigits + 1> text);
// The text begins with 15 digits.
Result WriteImeiItem(Operation& operation, const DataAddress& address, const char* text);
// Saves all items.
Result CommitItem(Operation& operation, const DataAddress& address, std::uint32_t timeoutMs);

}  // namespace merovane::commands
