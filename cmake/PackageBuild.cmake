# What the package presets add to a build: the same bytes in whatever folder it is made, and
# debugging information in files of its own, by whose name and checksum debuggers find it.
option(MEROVANE_PACKAGE_BUILD "Build what packages hold" OFF)

if(MEROVANE_PACKAGE_BUILD)
  # Sources are named from the top of their folder and generated files from that of the build's,
  # whether ccache reaches them from the build folder or not. The last map that fits counts.
  file(RELATIVE_PATH up ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
  add_compile_options(
    -ffile-prefix-map=${up}= -ffile-prefix-map=${CMAKE_SOURCE_DIR}/= -ffile-prefix-map=${CMAKE_BINARY_DIR}/=)
  if(WIN32)
    add_link_options(-Wl,--no-insert-timestamp)
  endif()

  # Whatever is linked is split.
  foreach(rule C_LINK_EXECUTABLE CXX_LINK_EXECUTABLE C_CREATE_SHARED_LIBRARY CXX_CREATE_SHARED_LIBRARY)
    list(APPEND CMAKE_${rule}
      "${CMAKE_OBJCOPY} --only-keep-debug <TARGET> <TARGET>.debug"
      "${CMAKE_STRIP} --strip-unneeded <TARGET>"
      "${CMAKE_OBJCOPY} --add-gnu-debuglink=<TARGET>.debug <TARGET>")
  endforeach()
endif()

# merovane_install_debug(TARGET FOLDER): into .debug beside the installed file, where debuggers look.
function(merovane_install_debug target folder)
  if(MEROVANE_PACKAGE_BUILD)
    install(FILES $<TARGET_FILE:${target}>.debug DESTINATION ${folder}/.debug COMPONENT debug EXCLUDE_FROM_ALL)
  endif()
endfunction()
