#include "parts/parts.h"

#include "parts/identity/identity.h"
#include "parts/memory/memory.h"
#include "parts/peripherals/peripherals.h"
#include "parts/radio/radio.h"
#include "parts/session/session.h"

namespace handset {

std::vector<std::unique_ptr<Part>> MakeParts(Firmware& firmware) {
  std::vector<std::unique_ptr<Part>> parts;
  for (auto make : {
           MakeModePart,
           MakeTracePart,
           MakeAtPart,
           MakeVersionPart,
           MakeItemsPart,
           MakeFixedNvPart,
           MakeRegistersPart,
           MakeIdentificationPart,
           MakeIdentityPart,
           MakeSwitchesPart,
           MakeMeasuringPart,
           MakeGpsPart,
           MakeBluetoothPart,
           MakeWifiPart,
           MakeDspPart,
           MakeRadioPart,
       }) {
    parts.push_back(make(firmware));
  }
  return parts;
}

}  // namespace handset
