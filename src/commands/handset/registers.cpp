#include "commands/handset/registers.h"

#include <algorithm>
#include <vector>

#include "commands/answer_fields.h"
#include "declared/memory.h"

namespace merovane::commands {
namespace {

constexpr FrameId kRegister{11, 0};
constexpr std::uint16_t kRead = 0xA003;
constexpr std::uint16_t kWrite = 0xA004;
constexpr std::uint32_t kTimeoutMs = 1000;

struct Registers {
  std::uint32_t accessWidth;
  std::uint32_t address;
  std::uint32_t count;
};

std::vector<std::uint8_t> Request(ByteOrder order, std::uint16_t operation,
                                  const Registers& registers, std::span<const std::uint8_t> data) {
  std::vector<std::uint8_t> request(kRegisterHeaderBytes + data.size());
  order.PutU16(request, 0, operation);
  order.PutU16(request, 2, static_cast<std::uint16_t>(request.size()));
  order.PutU32(request, 4, registers.accessWidth);
  order.PutU32(request, 8, registers.address);
  order.PutU32(request, 12, registers.count);
  std::ranges::copy(data, request.begin() + kRegisterHeaderBytes);
  return request;
}

}  // namespace

Result body::ReadRegister(Operation& operation, std::uint32_t accessWidth, std::uint32_t address,
                          std::span<std::uint8_t> data, std::uint32_t count) {
  const auto request = Request(operation.link.Order(), kRead, {accessWidth, address, count}, {});
  const Answer answer = operation.link.SendAndWaitSame(kRegister, request, kTimeoutMs);
  // What was asked for is delivered whole, however much of it the answer holds.
  if (answer) CopyZeroFilled(answer.Payload(), kRegisterHeaderBytes, data);
  return operation.Finish(answer.Why());
}

Result body::WriteRegister(Operation& operation, std::uint32_t accessWidth, std::uint32_t address,
                           std::span<const std::uint8_t> data, std::uint32_t count) {
  const auto request = Request(operation.link.Order(), kWrite, {accessWidth, address, count}, data);
  return operation.Finish(operation.link.SendAndWaitSame(kRegister, request, kTimeoutMs).Why());
}

}  // namespace merovane::commands
