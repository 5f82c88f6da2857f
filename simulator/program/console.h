// Carries out one line that was typed or piped to the running program; false on "quit". What it
// has to say goes to standard output.
#pragma once

#include <string>

#include "handset/handset.h"

namespace handset {

bool RunConsoleLine(Handset& handset, const std::string& line);

}  // namespace handset
