// Reading and writing a serial number runs other commands, as steps: they log their names and
// results and leave their operation ids behind; the command that runs them logs its name only.
#include "commands/handset/serial_number.h"

#include <algorithm>
#include <array>

#include "commands/answer_fields.h"
#include "declared/identity.h"
#include "declared/memory.h"

namespace merovane::commands {
namespace {

constexpr std::uint16_t kProductionItem = 0;
constexpr std::size_t kItemBytes = 1752;
constexpr std::size_t kBlockBytes = 256;
constexpr std::size_t kFieldBytes = 24;
constexpr std::size_t kGuidOffset = 152;
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

// Reads the production item from its start.
template <std::size_t kBytes>
Result ReadItem(Phone& phone, std::array<std::uint8_t, kBytes>& item, std::uint32_t timeoutMs) {
  item.fill(0);
  std::uint32_t length = 0;
  return ReadFlash(phone, kProductionItem, item.data(), kBytes, &length, timeoutMs);
}

// The same; every byte must arrive.
template <std::size_t kBytes>
Result ReadWholeItem(Phone& phone, std::array<std::uint8_t, kBytes>& item,
                     std::uint32_t timeoutMs) {
  std::uint32_t length = 0;
  const Result result = ReadFlash(phone, kProductionItem, item.data(), kBytes, &length, timeoutMs);
  return Succeeded(result) && length < kBytes ? Result::WrongDataLength : result;
}

// A block that is shorter than its room is whole too when its checksum matches.
Result ReadProductionBlock(Phone& phone, std::array<std::uint8_t, kBlockBytes>& block) {
  block.fill(0);
  std::uint32_t length = 0;
  return FastReadProduct(phone, block.data(), kBlockBytes, &length);
}

Result Deliver(std::span<const std::uint8_t> storage, std::size_t offset,
               std::span<std::uint8_t> serialNumber) {
  const std::uint32_t delivered = CopyCut(storage.subspan(offset, kFieldBytes), serialNumber);
  return delivered < kFieldBytes ? Result::BufferTooSmall : Result::Success;
}

void Put(std::span<std::uint8_t> storage, const Magic& magic, std::size_t offset,
         std::span<const std::uint8_t> serialNumber) {
  std::ranges::copy(magic, storage.begin());
  const auto field = storage.subspan(offset, kFieldBytes);
  std::ranges::fill(field, std::uint8_t{0});
  std::ranges::copy(serialNumber, field.begin());
}

}  // namespace

Result ReadSerialNumber(Operation& operation, SerialNumberField field,
                        std::span<std::uint8_t> serialNumber) {
  Phone& phone = operation.phone;
  Magic magic;
  if (const Result read = ReadItem(phone, magic, kReadMs); !Succeeded(read)) return read;
  if (magic == kProductionBlockMagic) {
    std::array<std::uint8_t, kBlockBytes> block;
    const Result read = ReadProductionBlock(phone, block);
    return Succeeded(read) ? Deliver(block, field.blockOffset, serialNumber) : read;
  }
  std::array<std::uint8_t, kNumbersBytes> item;
  const Result read = ReadItem(phone, item, kReadMs);
  return Succeeded(read) ? Deliver(item, field.itemOffset, serialNumber) : read;
}

Result WriteSerialNumber(Operation& operation, SerialNumberField field,
                         std::span<const std::uint8_t> serialNumber) {
  Phone& phone = operation.phone;
  // A magic of which bytes are missing must not pass for a handset without a layout: that one is
  // overwritten.
  Magic magic;
  if (const Result read = ReadWholeItem(phone, magic, kReadMs); !Succeeded(read)) return read;
  const bool inItem = magic == kFlashItemMagic;
  const bool inBlock = magic == kProductionBlockMagic;
  const auto layout = inItem    ? SerialNumberLayout::FlashItem
                      : inBlock ? SerialNumberLayout::ProductionBlock
                                : phone.newSerialNumberLayout;

  // One frame carries the whole of the layout, so that the handset keeps the old one until it has
  // the whole of the new one.
  if (layout == SerialNumberLayout::FlashItem) {
    std::array<std::uint8_t, kItemBytes> item{};
    const Result read = inItem ? ReadWholeItem(phone, item, kReadWholeItemMs) : Result::Success;
    if (!Succeeded(read)) return read;
    Put(item, kFlashItemMagic, field.itemOffset, serialNumber);
    return WriteFlash(phone, kProductionItem, item.data(), kItemBytes, kWriteItemMs);
  }
  std::array<std::uint8_t, kBlockBytes> block{};
  const Result read = inBlock ? ReadProductionBlock(phone, block) : Result::Success;
  if (!Succeeded(read)) return read;
  Put(block, kProductionBlockMagic, field.blockOffset, serialNumber);
  return FastWriteProduct(phone, block.data(), kBlockBytes);
}

Result body::ReadGuid(Operation& operation, std::span<std::uint8_t, 16> guid) {
  std::array<std::uint8_t, kItemBytes> item;
  const Result read = ReadItem(operation.phone, item, kReadMs);
  if (Succeeded(read)) {
    std::ranges::copy(std::span(item).subspan<kGuidOffset, guid.extent>(), guid.begin());
  }
  return read;
}

}  // namespace merovane::commands
