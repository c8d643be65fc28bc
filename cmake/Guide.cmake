# The user guide as the Help menu opens it: made of docs/user-guide.md, at the same place seen from the program
# in the build tree and where it is installed.
find_program(MARKDOWN_PY markdown_py REQUIRED)
set(guide ${CMAKE_BINARY_DIR}/share/corvalis/guide)
file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/images/*.png)
add_custom_command(OUTPUT ${guide}/user-guide.html
  COMMAND ${PROJECT_SOURCE_DIR}/packaging/guide/make-guide
    ${PROJECT_SOURCE_DIR}/docs/user-guide.md ${PROJECT_VERSION} ${guide}
  DEPENDS ${PROJECT_SOURCE_DIR}/packaging/guide/make-guide ${PROJECT_SOURCE_DIR}/packaging/guide/guide.css
    ${PROJECT_SOURCE_DIR}/docs/user-guide.md ${pictures}
  COMMENT "Making the user guide" VERBATIM)
add_custom_target(guide ALL DEPENDS ${guide}/user-guide.html)
install(DIRECTORY ${guide}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/corvalis/guide)
