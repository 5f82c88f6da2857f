#include "commands/handset/registers.h"

#include <array>
#include <cstring>
#include <vector>

#include "commands/answer_fields.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr FrameId kRegister{11, 0};
constexpr std::uint16_t kRead = 0xA003;
constexpr std::uint16_t kWrite = 0xA004;
constexpr std::size_t kRequestHeaderBytes = 16;
// The header's length field counts header and data in 16 bits.
constexpr std::uint64_t kMaxDataBytes = 0xFFFF - kRequestHeaderBytes;
// The frame's counts the frame's header as well.
constexpr std::uint64_t kMaxWriteBytes = kMaxPayloadBytes - kRequestHeaderBytes;

std::uint64_t DataBytes(std::uint32_t accessWidth, std::uint32_t count) {
  const std::uint64_t unitBytes = accessWidth == 0 ? 1 : accessWidth == 1 ? 2 : 4;
  return unitBytes * count;
}

void PutHeader(std::span<std::uint8_t> request, std::uint16_t operation, std::uint32_t accessWidth,
               std::uint32_t address, std::uint32_t count) {
  PutU16(request, 0, operation);
  PutU16(request, 2, static_cast<std::uint16_t>(request.size()));
  PutU32(request, 4, accessWidth);
  PutU32(request, 8, address);
  PutU32(request, 12, count);
}

}  // namespace

Result ReadRegister(Phone& phone, std::uint32_t accessWidth, std::uint32_t address,
                    std::uint8_t* data, std::uint32_t count) {
  Operation operation(phone, 29);
  const std::uint64_t bytes = DataBytes(accessWidth, count);
  if (!data || count == 0 || bytes > kMaxDataBytes) return Result::InvalidParam;
  operation.Log("ReadRegister:");
  std::array<std::uint8_t, kRequestHeaderBytes> request;
  PutHeader(request, kRead, accessWidth, address, count);
  const Answer answer = phone.link.SendAndWaitSame(kRegister, request, 1000);
  // What was asked for is delivered whole, however much of it the answer holds.
  if (answer) {
    CopyZeroFilled(answer.Payload(), kRequestHeaderBytes, {data, static_cast<std::size_t>(bytes)});
  }
  return operation.Finish(answer.Why());
}

Result WriteRegister(Phone& phone, std::uint32_t accessWidth, std::uint32_t address,
                     const std::uint8_t* data, std::uint32_t count) {
  Operation operation(phone, 30);
  const std::uint64_t bytes = DataBytes(accessWidth, count);
  if (!data || count == 0 || bytes > kMaxWriteBytes) return Result::InvalidParam;
  operation.Log("WriteRegister:");
  std::vector<std::uint8_t> request(kRequestHeaderBytes + static_cast<std::size_t>(bytes));
  PutHeader(request, kWrite, accessWidth, address, count);
  std::memcpy(&request[kRequestHeaderBytes], data, static_cast<std::size_t>(bytes));
  return operation.Finish(phone.link.SendAndWaitSame(kRegister, request, 1000));
}

}  // namespace merovane::commands
