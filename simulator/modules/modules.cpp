#include "modules/modules.h"

#include "modules/identity/identity.h"
#include "modules/memory/memory.h"
#include "modules/peripherals/peripherals.h"
#include "modules/session/session.h"
#include "radio/radio.h"

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
