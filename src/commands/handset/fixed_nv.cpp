// The fixed-NV information: IMEIs, addresses and the GPS settings in one block.
#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "commands/answer_fields.h"
#include "commands/crc16.h"
#include "commands/handset/gps_nv_block.h"
#include "commands/handset/radio_address.h"
#include "commands/imei.h"
#include "commands/storage_frames.h"
#include "declared/identity.h"
#include "platform/ascii.h"

namespace merovane::commands {
namespace {

static_assert(sizeof(QV_FIXED_NV_INFO) == 168);

constexpr std::uint8_t kType = 94;
constexpr FrameId kAnswer{kType, 1};
constexpr std::uint8_t kReadSubtype = 0xFF;
constexpr std::uint32_t kTimeoutMs = 3000;
constexpr std::uint32_t kCheckMs = 1000;

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

// Only the first twelve characters are read, and none after one that is no digit.
std::optional<Address> ParseAddress(const char* text) {
  Address address{};
  for (std::size_t at = 0; at < 2 * kAddressBytes; ++at) {
    const unsigned digit = platform::DigitValue(text[at]);
    if (digit >= 16) return std::nullopt;
    address[at / 2] = static_cast<std::uint8_t>(address[at / 2] << 4 | digit);
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
bool PutCheckedFields(ByteOrder order, const QV_FIXED_NV_INFO& info, Writing& writing) {
  if (info.write_imei1 && !writing.Put(kImei1, PackImei(info.imei1))) return false;
  if (info.write_imei2 && !writing.Put(kImei2, PackImei(info.imei2))) return false;
  if (info.write_bluetooth_address) {
    auto address = ParseAddress(info.bluetooth_address);
    if (address) address = Reversed(*address);
    if (!writing.Put(kBluetoothAddress, address)) return false;
  }
  if (info.write_parameter_block) {
    std::array<std::uint8_t, kGpsNvBytes> parameters;
    std::memcpy(parameters.data(), info.parameter_block, parameters.size());
    ConvertGpsNvBlock(order, parameters);
    writing.Put(kParameterBlock, std::optional(parameters));
  }
  return true;
}

// The fields whose text is not checked: a wrong one is written as zeros.
void PutUncheckedFields(const QV_FIXED_NV_INFO& info, Writing& writing) {
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
void TakeFields(ByteOrder order, Block block, QV_FIXED_NV_INFO& info) {
  TakeImei(block, kImei1, info.imei1);
  TakeImei(block, kImei2, info.imei2);
  TakeImei(block, kImei3, info.imei3);
  TakeImei(block, kImei4, info.imei4);
  PrintAddress(Reversed(AddressAt(block, kBluetoothAddress)), info.bluetooth_address);
  PrintAddress(AddressAt(block, kSecondAddress), info.second_address);
  auto parameters = FirstBytes<kGpsNvBytes>(block.subspan(kParameterBlock.offset));
  ConvertGpsNvBlock(order, parameters);
  std::memcpy(info.parameter_block, parameters.data(), parameters.size());
}

}  // namespace

Result body::CheckFixedNV(Operation& operation, std::uint32_t mode) {
  const bool block = mode == QV_FIXED_NV_BLOCK;
  const FrameId request = block ? FrameId{kType, 0xC0} : FrameId{kStorageType, 7};
  const FrameId awaited = block ? kAnswer : kStorageAnswer;
  return operation.Finish(
      operation.link.SendAndWait(request, awaited, kEmptyBlock, kCheckMs).Why());
}

Result body::NvWriteDirect(Operation& operation, const QV_FIXED_NV_INFO& info) {
  Writing writing;
  if (!PutCheckedFields(operation.link.Order(), info, writing)) return Result::InvalidParam;
  operation.Log("NvWriteDirect");
  // As long as a block with its checksum, which stays zero here.
  const auto payload = FirstBytes<kBlockBytes + kChecksumBytes>(writing.block);
  return operation.Finish(
      operation.link.SendAndWait({kType, writing.mask}, kAnswer, payload, kTimeoutMs).Why());
}

Result body::FastWriteNvInfo(Operation& operation, const QV_FIXED_NV_INFO& info) {
  const ByteOrder order = operation.link.Order();
  Writing writing;
  if (!PutCheckedFields(order, info, writing)) return Result::InvalidParam;
  PutUncheckedFields(info, writing);
  operation.Log("Write NV");
  const auto payload = WithChecksum(order, writing.block);
  return operation.Finish(
      operation.link.SendAndWait({kType, writing.mask}, kAnswer, payload, kTimeoutMs).Why());
}

Result body::FastReadNvInfo(Operation& operation, QV_FIXED_NV_INFO& info) {
  constexpr std::size_t kMaxBlockBytes = 108;
  const ByteOrder order = operation.link.Order();
  const Answer answer =
      operation.link.SendAndWait({kType, kReadSubtype}, kAnswer, kEmptyBlock, kTimeoutMs);
  const auto payload = answer.Payload();
  Result result = answer.Why();
  if (answer) {
    // An empty or damaged block leaves the record as it was, and is not logged.
    const bool hasChecksum = payload.size() >= kChecksumBytes;
    if (hasChecksum && !ChecksumMatches(order, payload)) return Result::ChecksumMismatch;
    if (payload.size() <= kChecksumBytes) return Result::NoData;
    if (payload.size() - kChecksumBytes > kMaxBlockBytes) result = Result::BufferTooSmall;
  }
  // After a failed exchange too: the record then reads as an empty block.
  TakeFields(order, FirstBytes<kBlockBytes>(payload), info);
  return operation.Finish(result);
}

}  // namespace merovane::commands
