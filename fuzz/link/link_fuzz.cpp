#include "link/link_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  merovane::fuzz::RunInput({data, size});
  return 0;
}
