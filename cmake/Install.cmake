# What `cmake --install` puts where, in components: runtime (the libraries), development (headers,
# import libraries, what CMake and pkg-config ask for), tools, bindings, documentation, and debug
# when debugging information was split off. docs/packages.md says it for users.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(VersionResource)

# On Windows a package is one folder that is copied, so its documentation stands at its top, where
# the links from the README reach it all.
if(WIN32)
  set(documentation .)
  set(shared .)
  set(libraries ${CMAKE_INSTALL_BINDIR})
else()
  set(documentation ${CMAKE_INSTALL_DATAROOTDIR}/doc/merovane)
  set(shared ${CMAKE_INSTALL_DATADIR}/merovane)
  set(libraries ${CMAKE_INSTALL_LIBDIR})
endif()
set(config ${CMAKE_INSTALL_LIBDIR}/cmake/Merovane)
# Beside the public headers, not among them: who replaces a companion needs these.
set(companion_headers ${CMAKE_INSTALL_INCLUDEDIR}/merovane-companions)

# merovane_install_library(TARGET NAME DESCRIPTION): a shared library, as Merovane::NAME to those
# who link against it. Programs load it under one name on every version, so its SONAME has no number.
function(merovane_install_library target name description)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT MerovaneTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
  merovane_version_resource(${target} ${description})
  merovane_install_debug(${target} ${libraries})
endfunction()

# merovane_install_tool(TARGET DESCRIPTION)
function(merovane_install_tool target description)
  file(RELATIVE_PATH path /${CMAKE_INSTALL_BINDIR} /${libraries})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${path}")
  install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  merovane_version_resource(${target} ${description})
  merovane_install_debug(${target} ${CMAKE_INSTALL_BINDIR})
endfunction()

merovane_install_library(merovane Merovane "Drives mobile handsets on a factory line")
merovane_install_library(cassorind Cassorind "Serial channels and TCP streams")
merovane_install_library(tollvane Tollvane "Client of the channel server")
merovane_install_library(brimwell Brimwell "Error codes")
if(NOT WIN32)
  merovane_install_library(threadqueue threadqueue "Message queues of threads")
endif()
merovane_install_tool(merovane_tool "Command-line tool for logs and NV projects")
merovane_install_tool(merovane-handset "Simulated handset")
merovane_install_tool(merovane-project-generator "Generator of NV projects")
merovane_install_tool(channel-server "Channel server")

install(DIRECTORY include/merovane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(DIRECTORY companions/common/include/ companions/cassorind/include/
                  companions/tollvane/include/ companions/brimwell/include/
  DESTINATION ${companion_headers} COMPONENT development)
foreach(companion cassorind tollvane brimwell)
  target_include_directories(${companion} INTERFACE $<INSTALL_INTERFACE:${companion_headers}>)
endforeach()
target_include_directories(merovane INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
install(FILES ${CMAKE_BINARY_DIR}/api/api.json DESTINATION ${shared} COMPONENT development)

install(EXPORT MerovaneTargets NAMESPACE Merovane:: DESTINATION ${config} COMPONENT development)
configure_package_config_file(cmake/MerovaneConfig.cmake.in ${CMAKE_BINARY_DIR}/install/MerovaneConfig.cmake
  INSTALL_DESTINATION ${config} PATH_VARS CMAKE_INSTALL_LIBDIR)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/install/MerovaneConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/install/MerovaneConfig.cmake ${CMAKE_BINARY_DIR}/install/MerovaneConfigVersion.cmake
  DESTINATION ${config} COMPONENT development)
file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/merovane.pc.in ${CMAKE_BINARY_DIR}/install/merovane.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/install/merovane.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(WIN32)
  include(MsvcImportLibraries)
endif()

# As sources. Wheels and the NuGet package hold them with the libraries.
set(bindings ${shared}/bindings)
install(DIRECTORY ${CMAKE_BINARY_DIR}/python/merovane DESTINATION ${bindings}/python COMPONENT bindings
  FILES_MATCHING PATTERN *.py PATTERN py.typed PATTERN __pycache__ EXCLUDE)
install(DIRECTORY bindings/csharp/ ${CMAKE_BINARY_DIR}/api/csharp/ DESTINATION ${bindings}/csharp COMPONENT bindings
  FILES_MATCHING PATTERN *.cs PATTERN test EXCLUDE)

foreach(language python csharp)
  install(FILES bindings/${language}/README.md DESTINATION ${bindings}/${language} COMPONENT bindings)
endforeach()

install(FILES README.md CHANGELOG.md DESTINATION ${documentation} COMPONENT documentation)
install(DIRECTORY docs DESTINATION ${documentation} COMPONENT documentation)
foreach(folder simulator tools/merovane companions/cassorind companions/tollvane companions/brimwell)
  install(FILES ${folder}/README.md DESTINATION ${documentation}/${folder} COMPONENT documentation)
endforeach()
install(DIRECTORY examples DESTINATION ${documentation} COMPONENT documentation
  PATTERN CMakeLists.txt EXCLUDE PATTERN .clang-tidy EXCLUDE PATTERN __pycache__ EXCLUDE)
install(FILES packaging/examples/CMakeLists.txt DESTINATION ${documentation}/examples COMPONENT documentation)
