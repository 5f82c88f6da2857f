#include "commands/handset/peripherals.h"

#include <array>
#include <utility>

#include "commands/answer_fields.h"
#include "commands/operation.h"
#include "link/byte_order.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kSwitchType = 17;
constexpr std::uint8_t kAdcType = 15;
constexpr FrameId kAdcAnswer{kAdcType, 0};
constexpr FrameId kVoltage{30, 0};
constexpr FrameId kKey{1, 0};

struct Switch {
  std::uint32_t operation;
  std::uint8_t onSubtype;
  std::uint8_t offSubtype;
  const char* onLogName;
  const char* offLogName;
};

// The handset's codes: LED and LCD go on together, LED and vibrator go off together.
constexpr Switch kLed{19, 3, 0, "LedOn:", "LedOff:"};
constexpr Switch kVibration{20, 4, 0, "VibrationOn:", "VibrationOff:"};
constexpr Switch kLcd{44, 3, 8, "LcdOn:", "LcdOff:"};
constexpr Switch kKeyLight{45, 16, 17, "keyLightOn:", "keyLightOff:"};
constexpr Switch kCamera{46, 18, 19, "CameraOn:", "CameraOff:"};

Result Turn(Phone& phone, const Switch& peripheral, std::uint32_t on) {
  Operation operation(phone, peripheral.operation);
  operation.Log(on ? peripheral.onLogName : peripheral.offLogName);
  return operation.Finish(
      phone.link.SendFrame({kSwitchType, on ? peripheral.onSubtype : peripheral.offSubtype}));
}

}  // namespace

Result LedOn(Phone& phone, std::uint32_t on) { return Turn(phone, kLed, on); }
Result VibrationOn(Phone& phone, std::uint32_t on) { return Turn(phone, kVibration, on); }
Result LcdOn(Phone& phone, std::uint32_t on) { return Turn(phone, kLcd, on); }
Result keyLightOn(Phone& phone, std::uint32_t on) { return Turn(phone, kKeyLight, on); }
Result CameraOn(Phone& phone, std::uint32_t on) { return Turn(phone, kCamera, on); }

Result ADCCalibration(Phone& phone, std::uint8_t channel, std::uint8_t* value,
                      std::uint32_t timeoutMs) {
  Operation operation(phone, 17);
  if (!value || timeoutMs == 0) return Result::InvalidParam;
  operation.Log("ADCCalibration:");
  const Answer answer = phone.link.SendAndWait({kAdcType, channel}, kAdcAnswer, {}, timeoutMs);
  if (answer) {
    // Callers get it most significant byte first.
    auto bytes = FirstBytes<2>(answer.Payload());
    if (!BigEndian()) std::swap(bytes[0], bytes[1]);
    value[0] = bytes[0];
    value[1] = bytes[1];
  }
  return operation.Finish(answer.Why());
}

Result ReadAdcValue(Phone& phone, std::uint8_t channel, std::uint16_t* value,
                    std::uint8_t* thirdByte, std::uint8_t* fourthByte, std::uint32_t timeoutMs) {
  Operation operation(phone, 17);
  if (!value) return Result::InvalidParam;
  operation.Log("ReadAdcValue:");
  const Answer answer = phone.link.SendAndWait({kAdcType, channel}, kAdcAnswer, {},
                                               timeoutMs == 0 ? 1000 : timeoutMs);
  if (answer) {
    const auto bytes = FirstBytes<4>(answer.Payload());
    *value = GetU16(bytes, 0);
    if (thirdByte) *thirdByte = bytes[2];
    if (fourthByte) *fourthByte = bytes[3];
  }
  return operation.Finish(answer.Why());
}

Result ReadPhoneVolt(Phone& phone, std::uint32_t* voltage) {
  Operation operation(phone, 18);
  if (!voltage) return Result::InvalidParam;
  operation.Log("ReadPhoneVolt:");
  const Answer answer = phone.link.SendAndWaitSame(kVoltage, {}, 1000);
  // Whatever came of the exchange: without an answer it reads 0.
  *voltage = GetU32(FirstBytes<4>(answer.Payload()), 0);
  return operation.Finish(answer.Why());
}

Result PressKeyboard(Phone& phone, std::uint32_t key) {
  constexpr std::uint16_t kPressMessage = 0xA001;
  constexpr std::size_t kMessageBytes = 8;
  Operation operation(phone, 39);
  operation.Log("PressKeyboard:");
  std::array<std::uint8_t, kMessageBytes> message;
  PutU16(message, 0, kPressMessage);
  PutU16(message, 2, kMessageBytes);
  PutU32(message, 4, key);
  return operation.Finish(phone.link.SendAndWaitSame(kKey, message, 1000));
}

}  // namespace merovane::commands
