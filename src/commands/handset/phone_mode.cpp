#include "commands/handset/phone_mode.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include "commands/operation.h"
#include "link/byte_order.h"
#include "link/frame_codec.h"

namespace merovane::commands {
namespace {

constexpr std::uint8_t kStartType = 0xFE;
constexpr std::uint8_t kModeChangeType = 12;

// What a handset sends while it boots: a whole frame of type 0xFE, subtype 1, without payload. It
// is compared as it arrives, so a frame in the other byte order is not one.
std::array<std::uint8_t, kMinFrameBytes> StartFrame() {
  std::array<std::uint8_t, kMinFrameBytes> frame{};
  frame.front() = frame.back() = kFlag;
  BuildHeader({kStartType, 1}, 0, {}, std::span(frame).subspan(1, kHeaderBytes));
  return frame;
}

// Looks for the start frame in the held bytes and says how many of them to remove. A start frame
// that may be arriving in pieces stays.
std::size_t FindStartFrame(std::span<const std::uint8_t> held, bool& found,
                           std::span<std::uint8_t, kHeaderBytes> header) {
  const auto pattern = StartFrame();
  std::size_t lastFlag = 0;
  for (std::size_t at = 0; at < held.size(); ++at) {
    if (held[at] != kFlag) continue;
    lastFlag = at;
    if (held.size() - at < pattern.size()) break;
    if (std::equal(pattern.begin(), pattern.end(),
                   held.begin() + static_cast<std::ptrdiff_t>(at))) {
      found = true;
      std::memcpy(header.data(), &held[at + 1], kHeaderBytes);
      return held.size();
    }
  }
  return held.size() >= lastFlag + pattern.size() ? held.size() : lastFlag;
}

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

  PhoneLink& link = phone.link;
  const platform::Deadline deadline(link.Clock(), timeoutMs);
  AnswerBuffer chunk;
  while (!deadline.Passed() && !link.Channel().Cancelled()) {
    std::size_t got = 0;
    if (!Succeeded(link.Channel().Read(chunk, deadline.RemainingMs(), got))) continue;
    link.FrameRing().Append(std::span<const std::uint8_t>(chunk).first(got));
    bool found = false;
    std::array<std::uint8_t, kHeaderBytes> header;
    link.FrameRing().Visit([&](std::span<const std::uint8_t> held, std::uint64_t) {
      return FindStartFrame(held, found, header);
    });
    if (!found) continue;
    *length = std::min<std::uint32_t>(capacity, kHeaderBytes);
    std::memcpy(data, header.data(), *length);
    link.LogReceived(header);
    link.FrameRing().Clear();
    return operation.Finish(Result::Success);
  }
  return operation.Finish(Result::NoUsefulData);
}

Result SetPhoneStartMode(Phone& phone, std::uint32_t mode) {
  Operation operation(phone, 6);
  operation.Log("SetPhoneStartMode:");
  const FrameId id{kStartType, StartModeSubtype(mode)};
  const Result sent = phone.link.SendFrame(id);
  if (!Succeeded(sent)) return sent;
  std::array<std::uint8_t, 10> answer;
  std::uint32_t length = 0;
  // Alone of its kind in not logging its result.
  return phone.link.WaitForAnswer(id, answer, &length, 4000);
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
  const Answer answer(phone.link, {kModeChangeType, mode}, {}, 4000);
  if (answer) *answered = answer.Payload().size() >= 2 ? 1 : 0;
  return operation.Finish(answer.result);
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
  std::uint32_t received = 0;
  const Result result = phone.link.ReceiveFrame({data, *length}, received, timeoutMs);
  *length = received;
  // Silence is no whole frame, too.
  return result == Result::NoData ? Result::NoFrame : result;
}

Result Write(Phone& phone, const std::uint8_t* data, std::int32_t length) {
  Operation operation(phone, 14);
  if (!data || length <= 0) return Result::InvalidParam;
  return phone.link.Channel().Write({data, static_cast<std::size_t>(length)});
}

}  // namespace merovane::commands
