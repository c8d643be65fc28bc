# What is shipped and where it goes; debian/ makes a package of it.
# The main CMakeLists.txt includes this last, when every target is known.
set(CORVALIS_LIBEXEC ${CMAKE_INSTALL_LIBEXECDIR}/corvalis)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)

# The target "programs" is everything that is shipped, without tests and benchmarks. Installing and packaging
# need no more than that.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
add_custom_target(programs)
foreach(program corvalis drutil hdiutil corvalis_preview guide)
  if(TARGET ${program})
    add_dependencies(programs ${program})
  endif()
endforeach()

# The engine's programs lie beside Corvalis and not among the user's commands: another package may own
# /usr/bin/drutil, and Corvalis uses that one when it is there.
install(TARGETS corvalis RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
foreach(program drutil hdiutil)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CORVALIS_LIBEXEC})
  endif()
endforeach()
install(PROGRAMS ${CMAKE_BINARY_DIR}/libexec/corvalis/ffmpeg DESTINATION ${CORVALIS_LIBEXEC})

include(cmake/InstallDesktop.cmake)
install(FILES debian/copyright README.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/corvalis)

# Installed compressed, without a time stamp so that a build can be reproduced.
function(install_compressed file name destination)
  set(compressed ${CMAKE_BINARY_DIR}/packaging/${name}.gz)
  add_custom_command(OUTPUT ${compressed}
    COMMAND gzip -9nc ${file} > ${compressed} DEPENDS ${file} VERBATIM)
  add_custom_target(compress-${name} ALL DEPENDS ${compressed})
  add_dependencies(programs compress-${name})
  install(FILES ${compressed} DESTINATION ${destination})
endfunction()
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
install_compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog ${CMAKE_INSTALL_DATADIR}/doc/corvalis)
file(GLOB pages CONFIGURE_DEPENDS ${packaging}/man/*.1)
foreach(page ${pages})
  get_filename_component(name ${page} NAME)
  install_compressed(${page} ${name} ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
