#include "commands/handset/serial_number.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "commands/handset/flash_nv.h"
#include "commands/handset/production_block.h"
#include "commands/operation.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kProductionItem = 0;
constexpr std::size_t kItemBytes = 1752;
constexpr std::size_t kBlockBytes = 256;
constexpr std::size_t kFieldBytes = 24;
constexpr std::size_t kGuidOffset = 152;
constexpr std::size_t kGuidBytes = 16;
// As far as a read of either number has to reach into the item.
constexpr std::size_t kNumbersBytes = 216;

constexpr std::uint32_t kReadMs = 4000;
constexpr std::uint32_t kReadWholeItemMs = 8000;
constexpr std::uint32_t kWriteItemMs = 3000;

// A 32-bit number whose bytes, most significant first, spell the layout's name; it is stored least
// significant first.
using Magic = std::array<std::uint8_t, 4>;
constexpr Magic kFlashItemMagic{'5', '0', 'V', 'Q'};
constexpr Magic kProductionBlockMagic{'9', '0', 'V', 'Q'};

struct SerialNumberField {
  std::size_t itemOffset;
  std::size_t blockOffset;
};
constexpr SerialNumberField kSN{8, 4};
constexpr SerialNumberField kSN2{168, 28};

// A read of the production item from its start. Whole only when every byte asked for arrived.
template <std::size_t kBytes>
Result ReadItem(Phone& phone, std::array<std::uint8_t, kBytes>& item, std::uint32_t timeoutMs,
                bool mustBeWhole) {
  item.fill(0);
  std::uint32_t length = 0;
  const Result result = ReadFlash(phone, kProductionItem, item.data(), kBytes, &length, timeoutMs);
  if (Succeeded(result) && mustBeWhole && length < kBytes) return Result::WrongDataLength;
  return result;
}

Result DeliverField(std::span<const std::uint8_t, kFieldBytes> field, std::uint8_t* out,
                    std::uint32_t capacity) {
  std::memcpy(out, field.data(), std::min<std::size_t>(kFieldBytes, capacity));
  return capacity < kFieldBytes ? Result::BufferTooSmall : Result::Success;
}

// The steps are commands of their own: they log their names and results and leave their operation
// ids behind; the command that runs them logs its name only.
Result ReadNumber(Phone& phone, std::string_view logName, SerialNumberField field,
                  std::uint8_t* out, std::uint32_t capacity) {
  Operation operation(phone, 26);
  if (!out || !IsCapacity(capacity)) return Result::InvalidParam;
  operation.Log(logName);

  Magic magic;
  if (const Result result = ReadItem(phone, magic, kReadMs, false); !Succeeded(result))
    return result;
  if (magic != kProductionBlockMagic) {
    std::array<std::uint8_t, kNumbersBytes> item;
    const Result result = ReadItem(phone, item, kReadMs, false);
    if (!Succeeded(result)) return result;
    return DeliverField(std::span(item).subspan(field.itemOffset).first<kFieldBytes>(), out,
                        capacity);
  }
  std::array<std::uint8_t, kBlockBytes> block{};
  std::uint32_t length = 0;
  const Result result = FastReadProduct(phone, block.data(), kBlockBytes, &length);
  if (!Succeeded(result)) return result;
  return DeliverField(std::span(block).subspan(field.blockOffset).first<kFieldBytes>(), out,
                      capacity);
}

void PutNumber(std::span<std::uint8_t> storage, const Magic& magic, std::size_t offset,
               std::span<const std::uint8_t> number) {
  std::copy(magic.begin(), magic.end(), storage.begin());
  const auto field = storage.subspan(offset, kFieldBytes);
  std::fill(field.begin(), field.end(), std::uint8_t{0});
  std::copy(number.begin(), number.end(), field.begin());
}

Result WriteNumber(Phone& phone, std::string_view logName, SerialNumberField field,
                   const std::uint8_t* number, std::uint32_t numberBytes) {
  Operation operation(phone, 27);
  if (!number || numberBytes == 0 || numberBytes >= kFieldBytes) return Result::InvalidParam;
  operation.Log(logName);

  // A magic of which bytes are missing must not pass for a handset without a layout: that one is
  // overwritten.
  Magic magic;
  if (const Result result = ReadItem(phone, magic, kReadMs, true); !Succeeded(result))
    return result;
  const bool inItem = magic == kFlashItemMagic;
  const bool inBlock = magic == kProductionBlockMagic;
  const auto layout = inItem    ? SerialNumberLayout::FlashItem
                      : inBlock ? SerialNumberLayout::ProductionBlock
                                : phone.newSerialNumberLayout;

  // One frame carries the whole of the layout, so that the handset holds the old one until it has
  // the new one in its hands.
  if (layout == SerialNumberLayout::FlashItem) {
    std::array<std::uint8_t, kItemBytes> item{};
    if (inItem) {
      const Result result = ReadItem(phone, item, kReadWholeItemMs, true);
      if (!Succeeded(result)) return result;
    }
    PutNumber(item, kFlashItemMagic, field.itemOffset, {number, numberBytes});
    return WriteFlash(phone, kProductionItem, item.data(), kItemBytes, kWriteItemMs);
  }
  std::array<std::uint8_t, kBlockBytes> block{};
  if (inBlock) {
    // Its checksum matched: a block shorter than 256 bytes is whole too.
    std::uint32_t length = 0;
    const Result result = FastReadProduct(phone, block.data(), kBlockBytes, &length);
    if (!Succeeded(result)) return result;
  }
  PutNumber(block, kProductionBlockMagic, field.blockOffset, {number, numberBytes});
  return FastWriteProduct(phone, block.data(), kBlockBytes);
}

}  // namespace

Result ReadSN(Phone& phone, std::uint8_t* serialNumber, std::uint32_t capacity) {
  return ReadNumber(phone, "ReadSN:", kSN, serialNumber, capacity);
}

Result ReadSN2(Phone& phone, std::uint8_t* serialNumber, std::uint32_t capacity) {
  return ReadNumber(phone, "ReadSN2:", kSN2, serialNumber, capacity);
}

Result WriteSN(Phone& phone, const std::uint8_t* serialNumber, std::uint32_t length) {
  return WriteNumber(phone, "WriteSN:", kSN, serialNumber, length);
}

Result WriteSN2(Phone& phone, const std::uint8_t* serialNumber, std::uint32_t length) {
  return WriteNumber(phone, "WriteSN2:", kSN2, serialNumber, length);
}

Result ReadGuid(Phone& phone, std::uint8_t* guid) {
  Operation operation(phone, 28);
  if (!guid) return Result::InvalidParam;
  operation.Log("ReadGuid:");
  std::array<std::uint8_t, kItemBytes> item;
  const Result result = ReadItem(phone, item, kReadMs, false);
  if (Succeeded(result)) std::memcpy(guid, &item[kGuidOffset], kGuidBytes);
  return result;
}

}  // namespace merovane::commands
