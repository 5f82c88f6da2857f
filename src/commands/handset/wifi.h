// The WiFi transceiver as equipment under test.
#pragma once

#include <cstdint>

#include "commands/phone.h"
#include "link/result.h"
#include "merovane/types.h"

namespace merovane::commands {

Result WIFI_EnterEUTMode(Phone& phone, std::uint32_t enter);
Result WIFI_SaveAddr(Phone& phone, const std::uint8_t* address);
Result WIFI_LoadAddr(Phone& phone, std::uint8_t* address);
Result WIFI_SetChannel(Phone& phone, std::uint32_t channel);
Result WIFI_SetDateRat(Phone& phone, std::uint32_t rate);
Result WIFI_SetMode(Phone& phone, std::uint32_t mode);
Result WIFI_SetPCL(Phone& phone, std::uint32_t level);
Result WIFI_SetTxStatus(Phone& phone, std::uint32_t enable, std::uint32_t argument);
Result WIFI_SetRxStatus(Phone& phone, std::uint32_t mode);
Result WIFI_ReadRxValue(Phone& phone, std::uint32_t* first, std::uint32_t* second);
Result WIFI_OperFactor(Phone& phone, std::uint32_t factorOperation, QV_WIFI_FACTOR* factor);
Result WIFI_SetCrystalCap(Phone& phone, const std::uint8_t* capacitance);

}  // namespace merovane::commands
