# What the presets switch on to compile less: objects of earlier builds come from ccache where it is
# installed. Where it is not, standard headers, most of a build's time, are read once and
# precompiled: the two do not go together, since ccache keeps whole objects.
option(MEROVANE_FAST_BUILD "Use ccache, or else precompiled headers" OFF)

find_program(MEROVANE_CCACHE ccache)
mark_as_advanced(MEROVANE_CCACHE)
if(NOT MEROVANE_FAST_BUILD OR MEROVANE_CCACHE)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
if(MEROVANE_FAST_BUILD AND MEROVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # One clone's objects serve the next one's build.
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=true ${MEROVANE_CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
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
