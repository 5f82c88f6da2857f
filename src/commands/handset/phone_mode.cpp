// The handset's start into test mode, its modes, its trace output, and the link as it is.
#include "declared/phone_mode.h"

#include <array>
#include <span>

#include "commands/answer_fields.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kStartType = 0xFE;
constexpr std::uint32_t kStartModeBase = 128;
constexpr std::uint8_t kModeChangeType = 12;
constexpr FrameId kRestart{kModeChangeType, 0};
constexpr FrameId kReadMode{28, 0};
constexpr FrameId kDeepSleep{17, 2};
constexpr FrameId kArmLogOn{2, 4};
constexpr FrameId kArmLogOff{2, 5};
constexpr FrameId kDspLogOn{2, 6};
constexpr FrameId kDspLogOff{2, 7};
constexpr std::uint32_t kModeMs = 4000;
constexpr std::uint32_t kQuickMs = 1000;

// The camp parameters as the sequence field carries them: 4 and 11 bits.
std::uint32_t CampWord(std::uint32_t first, std::uint32_t second) {
  const std::uint32_t low = (first & 0x0F) | ((second & 0x700) >> 3);
  return low | (second & 0xFF) << 8;
}

}  // namespace

Result body::RecvPhoneStartData(Operation& operation, std::span<std::uint8_t> data,
                                std::uint32_t& length, std::uint32_t timeoutMs) {
  std::array<std::uint8_t, kHeaderBytes> header;
  const Result result = operation.link.ReceiveStartFrame(header, timeoutMs);
  if (Succeeded(result)) length = CopyCut(header, data);
  return operation.Finish(result);
}

Result body::SetPhoneStartMode(Operation& operation, std::uint32_t mode) {
  const FrameId id{kStartType, static_cast<std::uint8_t>(mode + kStartModeBase)};
  const Result sent = operation.link.SendFrame(id);
  if (!Succeeded(sent)) return sent;
  // Alone of its kind in not logging its result.
  return operation.link.WaitForAnswer(id, kModeMs).Why();
}

Result body::SetPhoneStartModeEx(Operation& operation, std::uint32_t mode,
                                 std::uint32_t timeoutMs) {
  std::array<std::uint8_t, kHeaderBytes> header;
  std::uint32_t length = 0;
  Result result = commands::RecvPhoneStartData(operation.phone, header.data(), kHeaderBytes,
                                               &length, timeoutMs);
  if (Succeeded(result)) result = commands::SetPhoneStartMode(operation.phone, mode);
  return operation.Finish(result);
}

Result body::SetModeAndCampParam(Operation& operation, std::uint32_t mode,
                                 std::uint32_t firstCampParameter,
                                 std::uint32_t secondCampParameter) {
  operation.link.SetNextSequence(CampWord(firstCampParameter, secondCampParameter));
  return commands::SetPhoneStartMode(operation.phone, mode);
}

Result body::EnableArmLog(Operation& operation, bool enable) {
  return operation.Finish(operation.link.SendFrame(enable ? kArmLogOn : kArmLogOff));
}

Result body::EnableDspLog(Operation& operation, bool enable) {
  const FrameId id = enable ? kDspLogOn : kDspLogOff;
  return operation.Finish(operation.link.SendAndWaitSame(id, {}, kQuickMs).Why());
}

Result body::ChangePhoneMode(Operation& operation, std::uint8_t mode) {
  return operation.Finish(
      operation.link.SendAndWaitSame({kModeChangeType, mode}, {}, kModeMs).Why());
}

Result body::UsbChangePhoneMode(Operation& operation, std::uint8_t mode, std::uint32_t& answered) {
  const Answer answer = operation.link.SendAndWaitSame({kModeChangeType, mode}, {}, kModeMs);
  if (answer) answered = answer.Payload().size() >= 2 ? 1 : 0;
  return operation.Finish(answer.Why());
}

Result body::UsbChangeModeAndSetCampParam(Operation& operation, std::uint8_t mode,
                                          std::uint32_t firstCampParameter,
                                          std::uint32_t secondCampParameter,
                                          std::uint32_t& answered) {
  operation.link.SetNextSequence(CampWord(firstCampParameter, secondCampParameter));
  return commands::UsbChangePhoneMode(operation.phone, mode, &answered);
}

Result body::RestartPhone(Operation& operation, std::uint32_t timeoutMs) {
  return operation.Finish(operation.link.SendAndWaitSame(kRestart, {}, timeoutMs).Why());
}

Result body::ReadMode(Operation& operation, std::span<std::uint8_t> data) {
  constexpr std::size_t kModeByte = 3;
  const Answer answer = operation.link.SendAndWaitSame(kReadMode, {}, kQuickMs);
  // The mode reads as a start mode code.
  if (CopyCut(answer.Payload(), data) > kModeByte) {
    data[kModeByte] = static_cast<std::uint8_t>((data[kModeByte] & 0x0F) | kStartModeBase);
  }
  return operation.Finish(answer.Why());
}

Result body::EnterDeepSleepMode(Operation& operation) {
  return operation.Finish(operation.link.SendFrame(kDeepSleep));
}

Result body::Read(Operation& operation, std::span<std::uint8_t> data, std::uint32_t& length,
                  std::uint32_t timeoutMs) {
  const Frame frame = operation.link.ReceiveFrame(timeoutMs);
  length = CopyCut(frame.Bytes(), data);
  if (length < frame.Bytes().size()) return operation.Finish(Result::BufferTooSmall);
  // When nothing at all arrived, no whole frame did.
  const Result result = frame.Why() == Result::NoData ? Result::NoFrame : frame.Why();
  return operation.Finish(result);
}

Result body::Write(Operation& operation, std::span<const std::uint8_t> data) {
  return operation.link.WriteRaw(data);
}

}  // namespace merovane::commands
