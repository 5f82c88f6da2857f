// The exports that are no commands: sessions, properties, receive mode, mode process. Each reports
// its result unless it says otherwise.
#pragma once

#include <cstdint>

#include "library/library.h"
#include "merovane/types.h"

namespace merovane::library {

std::int32_t BeginPhoneTest(std::int32_t port, std::int32_t baudRate);
std::int32_t BeginPhoneTest_MT(std::int32_t port, std::int32_t baudRate);
std::int32_t EndPhoneTest();
std::int32_t EndPhoneTest_MT(std::int32_t port);

std::int32_t SetProperty(std::uint32_t property, std::uintptr_t value1, std::uintptr_t value2);
std::int32_t GetProperty(std::uint32_t property, std::uintptr_t value1, std::uint32_t* value);
// Not reported.
void SetRecvMode(std::uint32_t mode);
void SaveRecvData(std::uint32_t on, const char* path);
std::int32_t IsPhoneAssert();
std::int32_t GetUsbPort();

std::int32_t EnterModeProcess(std::uint32_t waitForPort, std::uint32_t mode, QV_EVENT event,
                              std::uint32_t timeLimitMs);
std::int32_t EnterModeProcess_MT(std::int32_t port, std::uint32_t waitForPort, std::uint32_t mode,
                                 QV_EVENT event, std::uint32_t timeLimitMs);
std::int32_t EnterModeProcessEx(std::uint32_t waitForPort, std::uint32_t mode,
                                std::uint32_t timeLimitMs);
std::int32_t EnterModeProcessEx_MT(std::int32_t port, std::uint32_t waitForPort, std::uint32_t mode,
                                   std::uint32_t timeLimitMs);
std::int32_t StopModeProcess();
std::int32_t StopModeProcess_MT(std::int32_t port);
std::int32_t ResetModeProcess(std::uint32_t throughPort, std::uint32_t rebootKind, QV_EVENT event,
                              std::uint32_t timeLimitMs);
std::int32_t ResetModeProcess_MT(std::int32_t port, std::uint32_t throughPort,
                                 std::uint32_t rebootKind, QV_EVENT event,
                                 std::uint32_t timeLimitMs);
std::int32_t SetCampParam(std::uint32_t campParameter);

// Stops every mode process and closes every port; false when one did not close.
bool CloseAll(Library& library);

}  // namespace merovane::library
