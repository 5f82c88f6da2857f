# Most of a build's time is the reading of standard headers: they are read once and precompiled. The
# presets take objects of earlier builds from ccache instead, where it is installed; the two do not go
# together, since ccache keeps whole objects.
option(MEROVANE_USE_CCACHE "Use ccache where it is installed" OFF)

if(MEROVANE_USE_CCACHE)
  find_program(MEROVANE_CCACHE ccache)
  mark_as_advanced(MEROVANE_CCACHE)
endif()
if(MEROVANE_USE_CCACHE AND MEROVANE_CCACHE)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
  if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # One clone's objects serve the next one's build.
    set(launcher ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=true ${MEROVANE_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  endif()
endif()

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
