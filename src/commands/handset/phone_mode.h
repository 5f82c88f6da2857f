// Bringing a handset into a mode: its start frame, start modes, mode changes, restart, trace
// output.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"

namespace merovane::commands {

Result RecvPhoneStartData(Phone& phone, std::uint8_t* data, std::uint32_t capacity,
                          std::uint32_t* length, std::uint32_t timeoutMs);
Result SetPhoneStartMode(Phone& phone, std::uint32_t mode);
Result SetPhoneStartModeEx(Phone& phone, std::uint32_t mode, std::uint32_t timeoutMs);
Result SetModeAndCampParam(Phone& phone, std::uint32_t mode, std::uint32_t firstCampParameter,
                           std::uint32_t secondCampParameter);
Result EnableArmLog(Phone& phone, std::uint32_t enable);
Result EnableDspLog(Phone& phone, std::uint32_t enable);
Result ChangePhoneMode(Phone& phone, std::uint8_t mode);
Result UsbChangePhoneMode(Phone& phone, std::uint8_t mode, std::uint32_t* answered);
Result UsbChangeModeAndSetCampParam(Phone& phone, std::uint8_t mode,
                                    std::uint32_t firstCampParameter,
                                    std::uint32_t secondCampParameter, std::uint32_t* answered);
Result RestartPhone(Phone& phone, std::uint32_t timeoutMs);
Result ReadMode(Phone& phone, std::uint8_t* data, std::uint32_t capacity);
Result EnterDeepSleepMode(Phone& phone);

// The link's own two steps, for callers with frames of their own.
Result Read(Phone& phone, std::uint8_t* data, std::uint32_t* length, std::uint32_t timeoutMs);
Result Write(Phone& phone, const std::uint8_t* data, std::int32_t length);

}  // namespace merovane::commands
