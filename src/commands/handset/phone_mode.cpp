#include "commands/handset/phone_mode.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include "commands/operation.h"
#include "link/frame_codec.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kStartType = 0xFE;
constexpr std::uint8_t kModeChangeType = 12;

std::uint8_t StartModeSubtype(std::uint32_t mode) { return static_cast<std::uint8_t>(mode + 128); }

// The camp parameters as the sequence field carries them: 4 and 11 bits.
std::uint32_t CampWord(std::uint32_t first, std::uint32_t second) {
  const std::uint32_t low = (first & 0x0F) | ((second & 0x700) >> 3);
  return low | (second & 0xFF) << 8;
}

}  // namespace

Result RecvPhoneStartData(Phone& phone, std::uint8_t* data, std::uint32_t capacity,
                          std::uint32_t* length, std::uint32_t timeoutMs) {
  Operation operation(phone, 5);
  if (!data || !IsCapacity(capacity) || !length) return Result::InvalidParam;
  operation.Log("RecvPhoneStartData:");

  std::array<std::uint8_t, kHeaderBytes> header;
  const Result result = phone.link.ReceiveStartFrame(header, timeoutMs);
  if (Succeeded(result)) {
    *length = std::min<std::uint32_t>(capacity, kHeaderBytes);
    std::memcpy(data, header.data(), *length);
  }
  return operation.Finish(result);
}

Result SetPhoneStartMode(Phone& phone, std::uint32_t mode) {
  Operation operation(phone, 6);
  operation.Log("SetPhoneStartMode:");
  const FrameId id{kStartType, StartModeSubtype(mode)};
  const Result sent = phone.link.SendFrame(id);
  if (!Succeeded(sent)) return sent;
  // Alone of its kind in not logging its result.
  return phone.link.WaitForAnswer(id, 4000).Why();
}

Result SetPhoneStartModeEx(Phone& phone, std::uint32_t mode, std::uint32_t timeoutMs) {
  Operation operation(phone, 7);
  operation.Log("SetPhoneStartModeEx:");
  AnswerBuffer header;
  std::uint32_t length = 0;
  Result result = RecvPhoneStartData(phone, header.data(),
                                     static_cast<std::uint32_t>(header.size()), &length, timeoutMs);
  if (Succeeded(result) && length == kHeaderBytes) result = SetPhoneStartMode(phone, mode);
  return operation.Finish(result);
}

Result SetModeAndCampParam(Phone& phone, std::uint32_t mode, std::uint32_t firstCampParameter,
                           std::uint32_t secondCampParameter) {
  phone.link.SetNextSequence(CampWord(firstCampParameter, secondCampParameter));
  return SetPhoneStartMode(phone, mode);
}

Result EnableArmLog(Phone& phone, std::uint32_t enable) {
  Operation operation(phone, 8);
  operation.Log(enable ? "EnableArmLog:" : "DisableArmLog:");
  return operation.Finish(phone.link.SendFrame(enable ? FrameId{2, 4} : FrameId{2, 5}));
}

Result EnableDspLog(Phone& phone, std::uint32_t enable) {
  Operation operation(phone, 237);
  operation.Log(enable ? "EnableDspLog:" : "DisableDspLog:");
  return operation.Finish(
      phone.link.SendAndWaitSame(enable ? FrameId{2, 6} : FrameId{2, 7}, {}, 1000));
}

Result ChangePhoneMode(Phone& phone, std::uint8_t mode) {
  Operation operation(phone, 9);
  operation.Log("ChangePhoneMode:");
  return operation.Finish(phone.link.SendAndWaitSame({kModeChangeType, mode}, {}, 4000));
}

Result UsbChangePhoneMode(Phone& phone, std::uint8_t mode, std::uint32_t* answered) {
  Operation operation(phone, 10);
  if (!answered) return Result::InvalidParam;
  operation.Log("UsbChangePhoneMode:");
  const Answer answer = phone.link.SendAndWaitSame({kModeChangeType, mode}, {}, 4000);
  if (answer) *answered = answer.Payload().size() >= 2 ? 1 : 0;
  return operation.Finish(answer.Why());
}

Result UsbChangeModeAndSetCampParam(Phone& phone, std::uint8_t mode,
                                    std::uint32_t firstCampParameter,
                                    std::uint32_t secondCampParameter, std::uint32_t* answered) {
  // Not into the link when nothing will be sent: the word is for this command's own frame.
  if (answered) phone.link.SetNextSequence(CampWord(firstCampParameter, secondCampParameter));
  return UsbChangePhoneMode(phone, mode, answered);
}

Result RestartPhone(Phone& phone, std::uint32_t timeoutMs) {
  Operation operation(phone, 11);
  if (timeoutMs == 0) return Result::InvalidParam;
  operation.Log("RestartPhone:");
  return operation.Finish(phone.link.SendAndWaitSame({kModeChangeType, 0}, {}, timeoutMs));
}

Result ReadMode(Phone& phone, std::uint8_t* data, std::uint32_t capacity) {
  Operation operation(phone, 12);
  if (!data || !IsCapacity(capacity)) return Result::InvalidParam;
  operation.Log("ReadMode:");
  std::uint32_t length = 0;
  const Result result =
      phone.link.SendAndWait({28, 0}, {28, 0}, {}, {data, capacity}, &length, 1000);
  // The mode reads as a start mode code.
  if (Succeeded(result) && length > 3 && capacity > 3) {
    data[3] = static_cast<std::uint8_t>((data[3] & 0x0F) | 0x80);
  }
  return operation.Finish(result);
}

Result EnterDeepSleepMode(Phone& phone) {
  Operation operation(phone, 21);
  operation.Log("EnterDeepSleepMode:");
  return operation.Finish(phone.link.SendFrame({17, 2}));
}

Result Read(Phone& phone, std::uint8_t* data, std::uint32_t* length, std::uint32_t timeoutMs) {
  Operation operation(phone, 13);
  if (!data || !length || !IsCapacity(*length) || timeoutMs == 0) return Result::InvalidParam;
  const Frame frame = phone.link.ReceiveFrame(timeoutMs);
  const auto bytes = frame.Bytes();
  const auto capacity = *length;
  *length = std::min(capacity, static_cast<std::uint32_t>(bytes.size()));
  if (*length > 0) std::memcpy(data, bytes.data(), *length);
  if (bytes.size() > capacity) return Result::BufferTooSmall;
  // Silence, too, means that no whole frame came.
  return frame.Why() == Result::NoData ? Result::NoFrame : frame.Why();
}

Result Write(Phone& phone, const std::uint8_t* data, std::int32_t length) {
  Operation operation(phone, 14);
  if (!data || length <= 0) return Result::InvalidParam;
  return phone.link.WriteRaw({data, static_cast<std::size_t>(length)});
}

}  // namespace merovane::commands
