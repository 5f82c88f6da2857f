# Import libraries for the Microsoft linker, where LLVM's dlltool is installed. The GNU tools' ones
# are made of code that it does not take.
find_program(MEROVANE_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
mark_as_advanced(MEROVANE_LLVM_DLLTOOL)
if(NOT MEROVANE_LLVM_DLLTOOL)
  return()
endif()

set(machine x64)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(machine x86)
endif()
set(made_libraries ${CMAKE_BINARY_DIR}/install)

# merovane_msvc_import_library(NAME DEFINITION DEPENDENCY)
function(merovane_msvc_import_library name definition dependency)
  set(library ${made_libraries}/${name}.lib)
  set(program ${CMAKE_SOURCE_DIR}/packaging/msvc_import_library.py)
  add_custom_command(OUTPUT ${library}
    COMMAND ${Python3_EXECUTABLE} ${program} --dlltool ${MEROVANE_LLVM_DLLTOOL} --machine ${machine}
            --dll ${name}.dll ${definition} ${library}
    DEPENDS ${dependency} ${program} VERBATIM)
  add_custom_target(${name}_msvc_import ALL DEPENDS ${library})
  install(FILES ${library} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endfunction()

merovane_msvc_import_library(
  Merovane ${CMAKE_BINARY_DIR}/api/Merovane-import-${machine}.def ${CMAKE_BINARY_DIR}/api/made.stamp)
add_dependencies(Merovane_msvc_import merovane_faces)
foreach(name Cassorind Tollvane Brimwell)
  string(TOLOWER ${name} folder)
  file(STRINGS companions/${folder}/exports.txt exports)
  list(JOIN exports "\n" exports)
  set(definition ${made_libraries}/${name}.def)
  file(CONFIGURE OUTPUT ${definition} CONTENT "EXPORTS\n@exports@\n" @ONLY)
  merovane_msvc_import_library(${name} ${definition} ${definition})
endforeach()
