// Tells in JSON what the settings are, where they come from, and what is wrong with them.
#pragma once

#include <string>

#include "library/call_recorder.h"
#include "link/link_environment.h"

namespace merovane::library {

std::string SettingsReport(const LinkEnvironment& environment, const CallRecorder& recorder);

}  // namespace merovane::library
