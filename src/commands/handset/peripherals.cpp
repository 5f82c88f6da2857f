// Switches, measurements and keys.
#include "commands/handset/peripherals.h"

#include <array>

#include "commands/answer_fields.h"
#include "declared/peripherals.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kSwitchType = 17;
constexpr std::uint8_t kAdcType = 15;
constexpr FrameId kAdcAnswer{kAdcType, 0};
constexpr FrameId kVoltage{30, 0};
constexpr FrameId kKey{1, 0};
constexpr std::uint32_t kQuickMs = 1000;

}  // namespace

Result Turn(Operation& operation, Switch peripheral, bool on) {
  return operation.Finish(
      operation.link.SendFrame({kSwitchType, on ? peripheral.on : peripheral.off}));
}

Result body::ADCCalibration(Operation& operation, std::uint8_t channel,
                            std::span<std::uint8_t, 2> value, std::uint32_t timeoutMs) {
  const Answer answer = operation.link.SendAndWait({kAdcType, channel}, kAdcAnswer, {}, timeoutMs);
  // Callers get it most significant byte first.
  if (answer) ByteOrder::Big().PutU16(value, 0, answer.U16(0));
  return operation.Finish(answer.Why());
}

Result body::ReadAdcValue(Operation& operation, std::uint8_t channel, std::uint16_t& value,
                          std::uint8_t* thirdByte, std::uint8_t* fourthByte,
                          std::uint32_t timeoutMs) {
  const Answer answer = operation.link.SendAndWait({kAdcType, channel}, kAdcAnswer, {},
                                                   timeoutMs == 0 ? kQuickMs : timeoutMs);
  if (answer) {
    const auto bytes = FirstBytes<4>(answer.Payload());
    value = answer.U16(0);
    if (thirdByte) *thirdByte = bytes[2];
    if (fourthByte) *fourthByte = bytes[3];
  }
  return operation.Finish(answer.Why());
}

Result body::ReadPhoneVolt(Operation& operation, std::uint32_t& voltage) {
  const Answer answer = operation.link.SendAndWaitSame(kVoltage, {}, kQuickMs);
  // Whatever came of the exchange: without an answer it reads 0.
  voltage = answer.U32(0);
  return operation.Finish(answer.Why());
}

Result body::PressKeyboard(Operation& operation, std::uint32_t key) {
  constexpr std::uint16_t kPressMessage = 0xA001;
  constexpr std::size_t kMessageBytes = 8;
  const ByteOrder order = operation.link.Order();
  std::array<std::uint8_t, kMessageBytes> message;
  order.PutU16(message, 0, kPressMessage);
  order.PutU16(message, 2, kMessageBytes);
  order.PutU32(message, 4, key);
  return operation.Finish(operation.link.SendAndWaitSame(kKey, message, kQuickMs).Why());
}

}  // namespace merovane::commands
