#include "support/station.h"

#include <stdlib.h>

#include "brimwell/brimwell.h"

namespace merovane::test {

PortOf::PortOf(const Handset& handset, std::int32_t port)
    : variable_("CASSORIND_COM" + std::to_string(port)) {
  ::setenv(variable_.c_str(), handset.DevicePath().c_str(), 1);
}

PortOf::~PortOf() { ::unsetenv(variable_.c_str()); }

Reported LastReported() {
  BRIMWELL_ERROR error{};
  EXPECT_EQ(Spec_GetLastError(BRIMWELL_MODULE_PHONE_COMMAND, &error), 1);
  return {error.operation, error.code};
}

StationTest::~StationTest() {
  QV_EndPhoneTest();
  QV_SetProperty(0, 0, 0);
  QV_SetProperty(3, 0, 0);
  QV_SetProperty(4, 0, 1);
  QV_SaveRecvData(0, nullptr);
  QV_SetCampParam(0);
}

void StationTest::SwitchOn(const HandsetOptions& options) {
  SwitchOff();
  phone.emplace(options);
  phone->Start();
  device_.emplace(*phone, kPort);
}

void StationTest::SwitchOff() {
  if (!phone) return;
  QV_EndPhoneTest();
  device_.reset();
  phone.reset();
}

}  // namespace merovane::test
