#include "commands/calibration/calibration_items.h"

#include <algorithm>

namespace merovane::commands {
namespace {

constexpr std::uint32_t kWriteImeiTimeoutMs = 3000;

}  // namespace

Result ReadImeiItem(Operation& operation, const DataAddress& address,
                    std::span<char, kImeiDigits + 1> text) {
  PackedImei packed{};
  const Result result = ReadData(operation.link, address, packed, Element::Byte);
  if (Succeeded(result)) std::ranges::copy(DecimalImeiText(packed), text.begin());
  return operation.Finish(result);
}

Result WriteImeiItem(Operation& operation, const DataAddress& address, const char* text) {
  const PackedImei packed = PackImei(text).value();
  return operation.Finish(
      WriteData(operation.link, address, packed, Element::Byte, kWriteImeiTimeoutMs));
}

Result CommitItem(Operation& operation, const DataAddress& address, std::uint32_t timeoutMs) {
  return operation.Finish(WriteData(operation.link, address, {}, Element::Byte, timeoutMs));
}

}  // namespace merovane::commands
