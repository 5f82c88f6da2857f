# merovane_test(NAME SOURCES … [LIBRARIES …] [LABELS …] [TIMEOUT seconds] [WINE])
# A GoogleTest program and its CTest entry. For Windows it is built by default, and named in
# ${CMAKE_BINARY_DIR}/wine-tests.txt, when WINE says that it needs nothing but Windows: no pty, no
# program of the build machine.
if(WIN32)
  # The packaged GoogleTest is for the build machine: build its sources.
  if(NOT TARGET gtest)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  endif()
  cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL merovane_write_wine_tests)
else()
  find_package(GTest REQUIRED)
endif()

# An executable, as those that use its headers are: position-independent code differs from a library's.
add_executable(merovane_test_headers EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/headers.cpp)
target_link_libraries(merovane_test_headers PRIVATE merovane_build_options merovane_unoptimised GTest::gmock GTest::gtest)
target_precompile_headers(merovane_test_headers PRIVATE ${MEROVANE_STANDARD_HEADERS} <gmock/gmock.h> <gtest/gtest.h>)

function(merovane_write_wine_tests)
  get_property(programs GLOBAL PROPERTY MEROVANE_WINE_TESTS)
  list(TRANSFORM programs APPEND ".exe\n")
  list(JOIN programs "" lines)
  file(WRITE ${CMAKE_BINARY_DIR}/wine-tests.txt "${lines}")
endfunction()

function(merovane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "WINE" "TIMEOUT" "SOURCES;LIBRARIES;LABELS")
  if(NOT test_TIMEOUT)
    set(test_TIMEOUT 120)
  endif()
  add_executable(${name} ${test_SOURCES})
  target_link_libraries(${name} PRIVATE merovane_build_options merovane_unoptimised ${test_LIBRARIES} GTest::gmock_main GTest::gmock GTest::gtest)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
  target_precompile_headers(${name} REUSE_FROM merovane_test_headers)
  if(NOT WIN32)
    # One CTest entry a program: starting a process per case costs more than the cases.
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${test_TIMEOUT} LABELS "${test_LABELS}")
  elseif(test_WINE)
    set_property(GLOBAL APPEND PROPERTY MEROVANE_WINE_TESTS ${name})
  else()
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
endfunction()
