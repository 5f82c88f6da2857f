# Flags that every target of ours takes (link it PRIVATE). The presets make warnings errors.
add_library(merovane_build_options INTERFACE)
target_compile_options(merovane_build_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  $<$<COMPILE_LANGUAGE:C>:-Wmissing-prototypes>
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual>
  # A function that no header declares has no name outside its file.
  $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wmissing-declarations>
  $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wmissing-prototypes -Wthread-safety>
  # g++ 12 takes optimised string concatenations for overlapping copies.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# For code that runs once, as tests and command lines do: optimising it is most of a build's time, and
# writing down its types much of the rest; lines and functions are what a stack shows.
add_library(merovane_unoptimised INTERFACE)
if(NOT MEROVANE_SANITIZE)
  target_compile_options(merovane_unoptimised INTERFACE -O0 $<$<CONFIG:RelWithDebInfo>:-g1>)
endif()

if(MEROVANE_SANITIZE)
  add_compile_options(-fsanitize=${MEROVANE_SANITIZE} -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${MEROVANE_SANITIZE})
  if(MEROVANE_SANITIZE MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
endif()

# clang leaves a sanitizer's functions to be found in the program.
if(NOT WIN32 AND NOT MEROVANE_SANITIZE)
  string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,--no-undefined")
endif()

# A fuzzer is led by what its input reaches, in the libraries too.
if(MEROVANE_BUILD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()

if(WIN32)
  add_compile_definitions(_WIN32_WINNT=0x0601 WINVER=0x0601 UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
  # Nothing but the product's own DLLs is shipped.
  add_link_options(-static -static-libgcc -static-libstdc++)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_compile_options(-msse2 -mfpmath=sse -mstackrealign)
  endif()
  # The build machine's header-only packages, linked into a folder of their own:
  # its other system headers must not be on the cross compiler's path.
  set(header_only ${CMAKE_BINARY_DIR}/header-only)
  file(MAKE_DIRECTORY ${header_only})
  foreach(entry asio asio.hpp CLI nlohmann)
    if(EXISTS /usr/include/${entry} AND NOT EXISTS ${header_only}/${entry})
      file(CREATE_LINK /usr/include/${entry} ${header_only}/${entry} SYMBOLIC)
    endif()
  endforeach()
endif()

# The version stands in the project's declaration: programs say it from here.
configure_file(${CMAKE_SOURCE_DIR}/cmake/version.h.in ${CMAKE_BINARY_DIR}/generated/merovane_version/version.h @ONLY)
add_library(merovane_version INTERFACE)
target_include_directories(merovane_version INTERFACE ${CMAKE_BINARY_DIR}/generated)

# Header-only packages (Asio, CLI11, nlohmann-json) for companions, simulator, tools and tests.
add_library(merovane_header_only INTERFACE)
if(WIN32)
  target_include_directories(merovane_header_only SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/header-only)
  target_link_libraries(merovane_header_only INTERFACE ws2_32 mswsock)
else()
  target_link_libraries(merovane_header_only INTERFACE Threads::Threads)
endif()
# Whether Asio finds aligned allocation depends on the headers included before it, and files
# that decide differently free each other's memory the wrong way.
target_compile_definitions(merovane_header_only INTERFACE ASIO_STANDALONE ASIO_NO_DEPRECATED ASIO_DISABLE_STD_ALIGNED_ALLOC)
if(MEROVANE_SANITIZE MATCHES "thread")
  # ThreadSanitizer knows no bare fences; Asio's are beside its own locks.
  target_compile_definitions(merovane_header_only INTERFACE ASIO_DISABLE_FENCED_BLOCK)
endif()
