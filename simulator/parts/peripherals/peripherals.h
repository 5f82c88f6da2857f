#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// LED, vibrator, LCD, key light and camera.
std::unique_ptr<Module> MakeSwitchesModule(Firmware& firmware);
// ADC channels, battery voltage and pressed keys.
std::unique_ptr<Module> MakeMeasuringModule(Firmware& firmware);
std::unique_ptr<Module> MakeGpsModule(Firmware& firmware);
std::unique_ptr<Module> MakeBluetoothModule(Firmware& firmware);
std::unique_ptr<Module> MakeWifiModule(Firmware& firmware);
// The DSP's debug functions.
std::unique_ptr<Module> MakeDspModule(Firmware& firmware);

}  // namespace handset
