# merovane_exports(TARGET): a shared library of ours exports and shows the functions that stand in
# exports.txt beside its CMakeLists.txt, one to a line, and nothing else. (On Windows the mark on
# their declarations sees to that.) scripts/check-exports compares the built file with the list.
function(merovane_exports target)
  set(list ${CMAKE_CURRENT_SOURCE_DIR}/exports.txt)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
  if(NOT WIN32)
    file(STRINGS ${list} names)
    list(JOIN names "; " names)
    set(map ${CMAKE_CURRENT_BINARY_DIR}/exports.map)
    file(CONFIGURE OUTPUT ${map} CONTENT "{ global: @names@; local: *; };\n" @ONLY)
    target_link_options(${target} PRIVATE -Wl,--version-script=${map})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
  endif()
endfunction()
