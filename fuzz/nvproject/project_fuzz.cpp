#include <cstddef>
#include <cstdint>
#include <string>

#include "nvproject/project_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  merovane::nvproject::fuzzing::RunProjectInput(std::string(data, data + size));
  return 0;
}
