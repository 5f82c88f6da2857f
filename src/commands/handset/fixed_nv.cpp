#include "commands/handset/fixed_nv.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "commands/answer_fields.h"
#include "commands/crc16.h"
#include "commands/handset/gps_nv_block.h"
#include "commands/handset/radio_address.h"
#include "commands/imei.h"
#include "commands/operation.h"
#include "commands/storage_frames.h"

namespace merovane::commands {
namespace {

static_assert(sizeof(QV_FIXED_NV_INFO) == 168);

constexpr std::uint8_t kType = 94;
constexpr FrameId kAnswer{kType, 1};
constexpr std::uint8_t kReadSubtype = 0xFF;
constexpr std::uint32_t kTimeoutMs = 3000;

// Where the fields stand in the block. A write's mask says which of them count.
constexpr std::size_t kBlockBytes = 106;
struct Field {
  std::size_t offset;
  std::uint8_t mask;
};
constexpr Field kImei1{0, 0x01};
constexpr Field kImei2{8, 0x02};
constexpr Field kBluetoothAddress{16, 0x04};
constexpr Field kParameterBlock{22, 0x08};
constexpr Field kSecondAddress{66, 0x40};
constexpr Field kImei3{74, 0x10};
constexpr Field kImei4{82, 0x20};

std::optional<std::uint8_t> HexDigit(char character) {
  if (character >= '0' && character <= '9') return static_cast<std::uint8_t>(character - '0');
  const char small = static_cast<char>(character | 0x20);
  if (small >= 'a' && small <= 'f') return static_cast<std::uint8_t>(small - 'a' + 10);
  return std::nullopt;
}

// Only the first twelve characters are read, and none behind one that is no digit.
std::optional<Address> ParseAddress(const char* text) {
  Address address{};
  for (std::size_t at = 0; at < 2 * kAddressBytes; ++at) {
    const auto digit = HexDigit(text[at]);
    if (!digit) return std::nullopt;
    address[at / 2] = static_cast<std::uint8_t>(address[at / 2] << 4 | *digit);
  }
  return address;
}

// A block on its way to the handset.
struct Writing {
  std::array<std::uint8_t, kBlockBytes> block{};
  std::uint8_t mask = 0;

  template <typename Bytes>
  bool Put(Field field, const std::optional<Bytes>& bytes) {
    mask |= field.mask;
    if (bytes) std::copy(bytes->begin(), bytes->end(), block.begin() + field.offset);
    return bytes.has_value();
  }
};

// The fields that are written only when they are right.
bool PutCheckedFields(Writing& writing, const QV_FIXED_NV_INFO& info) {
  if (info.write_imei1 && !writing.Put(kImei1, PackImei(info.imei1))) return false;
  if (info.write_imei2 && !writing.Put(kImei2, PackImei(info.imei2))) return false;
  if (info.write_bluetooth_address) {
    auto address = ParseAddress(info.bluetooth_address);
    if (address) address = Reversed(address->data());
    if (!writing.Put(kBluetoothAddress, address)) return false;
  }
  if (info.write_parameter_block) {
    std::array<std::uint8_t, kGpsNvBytes> parameters;
    std::memcpy(parameters.data(), info.parameter_block, parameters.size());
    ConvertGpsNvBlock(parameters);
    writing.Put(kParameterBlock, std::optional(parameters));
  }
  return true;
}

// The fields whose text is not checked: a wrong one is written as zeros.
void PutUncheckedFields(Writing& writing, const QV_FIXED_NV_INFO& info) {
  if (info.write_second_address) writing.Put(kSecondAddress, ParseAddress(info.second_address));
  if (info.write_imei3) writing.Put(kImei3, PackImei(info.imei3));
  if (info.write_imei4) writing.Put(kImei4, PackImei(info.imei4));
}

using Block = std::span<const std::uint8_t, kBlockBytes>;

void TakeImei(Block block, Field field, char (&text)[16]) {
  const auto packed = block.subspan(field.offset).first<kPackedImeiBytes>();
  std::memcpy(text, HexImeiText(packed).data(), sizeof text);
}

Address AddressAt(Block block, Field field) {
  return FirstBytes<kAddressBytes>(block.subspan(field.offset));
}

void PrintAddress(const Address& address, char (&text)[16]) {
  std::memset(text, 0, sizeof text);
  for (std::size_t at = 0; at < kAddressBytes; ++at) {
    text[2 * at] = "0123456789ABCDEF"[address[at] >> 4];
    text[2 * at + 1] = "0123456789ABCDEF"[address[at] & 0x0F];
  }
}

// The write flags stay as they are.
void TakeFields(Block block, QV_FIXED_NV_INFO& info) {
  TakeImei(block, kImei1, info.imei1);
  TakeImei(block, kImei2, info.imei2);
  TakeImei(block, kImei3, info.imei3);
  TakeImei(block, kImei4, info.imei4);
  PrintAddress(Reversed(&block[kBluetoothAddress.offset]), info.bluetooth_address);
  PrintAddress(AddressAt(block, kSecondAddress), info.second_address);
  auto parameters = FirstBytes<kGpsNvBytes>(block.subspan(kParameterBlock.offset));
  ConvertGpsNvBlock(parameters);
  std::memcpy(info.parameter_block, parameters.data(), parameters.size());
}

}  // namespace

Result CheckFixedNV(Phone& phone, std::uint32_t mode) {
  constexpr std::uint32_t kInformationBlockMode = 10;
  Operation operation(phone, 220);
  operation.Log("Check NV:");
  const bool block = mode == kInformationBlockMode;
  const FrameId request = block ? FrameId{kType, 0xC0} : FrameId{kStorageType, 7};
  const FrameId awaited = block ? kAnswer : kStorageAnswer;
  return operation.Finish(phone.link.SendAndWait(request, awaited, kEmptyBlock, 1000).Why());
}

Result NvWriteDirect(Phone& phone, const QV_FIXED_NV_INFO* info) {
  Operation operation(phone, 238);
  if (!info) return Result::InvalidParam;
  Writing writing;
  if (!PutCheckedFields(writing, *info)) return Result::InvalidParam;
  operation.Log("NvWriteDirect");
  // As long as a block with its checksum, which stays zero here.
  const auto payload = FirstBytes<kBlockBytes + kChecksumBytes>(writing.block);
  return operation.Finish(
      phone.link.SendAndWait({kType, writing.mask}, kAnswer, payload, kTimeoutMs).Why());
}

Result FastWriteNvInfo(Phone& phone, const QV_FIXED_NV_INFO* info) {
  Operation operation(phone, 238);
  if (!info) return Result::InvalidParam;
  Writing writing;
  if (!PutCheckedFields(writing, *info)) return Result::InvalidParam;
  PutUncheckedFields(writing, *info);
  operation.Log("Write NV");
  return operation.Finish(
      phone.link
          .SendAndWait({kType, writing.mask}, kAnswer, WithChecksum(writing.block), kTimeoutMs)
          .Why());
}

Result FastReadNvInfo(Phone& phone, QV_FIXED_NV_INFO* info) {
  constexpr std::size_t kMaxBlockBytes = 108;
  Operation operation(phone, 238);
  if (!info) return Result::InvalidParam;
  operation.Log("Read NV");
  const Answer answer =
      phone.link.SendAndWait({kType, kReadSubtype}, kAnswer, kEmptyBlock, kTimeoutMs);
  const auto payload = answer.Payload();
  Result result = answer.Why();
  if (answer) {
    // An empty or damaged block leaves the record as it was, and is not logged.
    if (payload.size() <= kChecksumBytes) return Result::NoData;
    if (!ChecksumMatches(payload)) return Result::ChecksumMismatch;
    if (payload.size() - kChecksumBytes > kMaxBlockBytes) result = Result::BufferTooSmall;
  }
  // After a failed exchange too: the record then reads as an empty block.
  TakeFields(FirstBytes<kBlockBytes>(payload), *info);
  return operation.Finish(result);
}

}  // namespace merovane::commands
