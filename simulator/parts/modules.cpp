#include "parts/modules.h"

#include "parts/identity/identity.h"
#include "parts/memory/memory.h"
#include "parts/peripherals/peripherals.h"
#include "parts/radio/radio.h"
#include "parts/session/session.h"

namespace handset {

std::vector<std::unique_ptr<Module>> MakeModules(Firmware& firmware) {
  std::vector<std::unique_ptr<Module>> modules;
  for (auto make : {
           MakeModeModule,
           MakeTraceModule,
           MakeAtModule,
           MakeVersionModule,
           MakeItemsModule,
           MakeFixedNvModule,
           MakeRegistersModule,
           MakeIdentificationModule,
           MakeIdentityModule,
           MakeSwitchesModule,
           MakeMeasuringModule,
           MakeGpsModule,
           MakeBluetoothModule,
           MakeWifiModule,
           MakeDspModule,
           MakeRadioModule,
       }) {
    modules.push_back(make(firmware));
  }
  return modules;
}

}  // namespace handset
