# Most of a build's time is the reading of standard headers. Without a compiler cache they are read
# once (scripts/lib.sh switches this off where there is one: a cache keeps whole objects).
file(WRITE ${CMAKE_BINARY_DIR}/headers.cpp "int main() {}\n")
set(MEROVANE_STANDARD_HEADERS
  <algorithm> <array> <atomic> <chrono> <condition_variable> <cstdint> <cstdio> <cstring> <deque> <filesystem>
  <functional> <map> <memory> <mutex> <optional> <span> <stdexcept> <string> <string_view> <thread> <utility> <vector>)

add_library(merovane_library_headers STATIC EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/headers.cpp)
target_link_libraries(merovane_library_headers PRIVATE merovane_build_options)
target_precompile_headers(merovane_library_headers PRIVATE ${MEROVANE_STANDARD_HEADERS})

function(merovane_precompiled_headers)
  foreach(target ${ARGN})
    target_precompile_headers(${target} REUSE_FROM merovane_library_headers)
  endforeach()
endfunction()
