// The parts around the baseband: switches, measured values and short-range radios.
#pragma once

#include <memory>

#include "firmware/firmware.h"

namespace handset {

// LED, vibrator, LCD, key light and camera.
std::unique_ptr<Part> MakeSwitchesPart(Firmware& firmware);
// ADC channels, battery voltage and pressed keys.
std::unique_ptr<Part> MakeMeasuringPart(Firmware& firmware);
std::unique_ptr<Part> MakeGpsPart(Firmware& firmware);
std::unique_ptr<Part> MakeBluetoothPart(Firmware& firmware);
std::unique_ptr<Part> MakeWifiPart(Firmware& firmware);
// The DSP's debug functions.
std::unique_ptr<Part> MakeDspPart(Firmware& firmware);

}  // namespace handset
