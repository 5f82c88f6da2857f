#include "modules/modules.h"

#include "modules/session/session.h"

namespace handset {

std::vector<std::unique_ptr<Module>> MakeModules(Firmware& firmware) {
  std::vector<std::unique_ptr<Module>> modules;
  modules.push_back(MakeModeModule(firmware));
  modules.push_back(MakeTraceModule(firmware));
  modules.push_back(MakeAtModule(firmware));
  modules.push_back(MakeVersionModule(firmware));
  return modules;
}

}  // namespace handset
