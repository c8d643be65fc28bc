# What software centres tell of the program: the addresses that were configured, the releases from the changelog.
find_program(PYTHON3 python3 REQUIRED)
set(changelogs ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/debian/changelog)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelogs} packaging/make-releases)
execute_process(COMMAND ${PYTHON3} ${PROJECT_SOURCE_DIR}/packaging/make-releases ${changelogs} ${PROJECT_VERSION}
  OUTPUT_VARIABLE RELEASES OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(metainfo org.corvalis.Corvalis.metainfo.xml)
configure_file(packaging/${metainfo}.in ${CMAKE_BINARY_DIR}/packaging/${metainfo} @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/packaging/${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
