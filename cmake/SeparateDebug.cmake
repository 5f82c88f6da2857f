# For packages: what is built is stripped, and its debugging information stands in a file of its own,
# by whose name and checksum debuggers find it (component debug).
option(MEROVANE_SEPARATE_DEBUG "Split debugging information off what is installed" OFF)

function(merovane_separate_debug target)
  if(NOT MEROVANE_SEPARATE_DEBUG)
    return()
  endif()
  set(folder ${CMAKE_BINARY_DIR}/debug)
  file(MAKE_DIRECTORY ${folder})
  set(split ${folder}/$<TARGET_FILE_NAME:${target}>.debug)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${split}
    COMMAND ${CMAKE_STRIP} --strip-unneeded $<TARGET_FILE:${target}>
    COMMAND ${CMAKE_OBJCOPY} --add-gnu-debuglink=${split} $<TARGET_FILE:${target}> VERBATIM)
  # Where debuggers look: .debug beside the file.
  get_target_property(type ${target} TYPE)
  set(beside ${CMAKE_INSTALL_LIBDIR})
  if(WIN32 OR type STREQUAL EXECUTABLE)
    set(beside ${CMAKE_INSTALL_BINDIR})
  endif()
  install(FILES ${split} DESTINATION ${beside}/.debug COMPONENT debug EXCLUDE_FROM_ALL)
endfunction()
