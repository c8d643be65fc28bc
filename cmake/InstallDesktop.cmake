# What a desktop finds the program by: entry, icons, types of files, completions, menus of file managers.
# Included by Install.cmake.
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)

install(FILES ${packaging}/org.corvalis.Corvalis.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/org.corvalis.Corvalis.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME org.corvalis.Corvalis.xml)

# The bus starts the program by its full path, which is only known when it is installed.
install(CODE "
  cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX NORMALIZE OUTPUT_VARIABLE prefix)
  set(CORVALIS_PROGRAM \${prefix}/${CMAKE_INSTALL_BINDIR}/corvalis)
  set(service \${prefix}/${CMAKE_INSTALL_DATADIR}/dbus-1/services/org.corvalis.Corvalis.service)
  configure_file(${packaging}/org.corvalis.Corvalis.service.in \$ENV{DESTDIR}\${service} @ONLY)
  list(APPEND CMAKE_INSTALL_MANIFEST_FILES \${service})")

install(FILES src/kit/icons/corvalis.svg DESTINATION ${icons}/scalable/apps)
install(FILES ${packaging}/icons/corvalis-symbolic.svg DESTINATION ${icons}/symbolic/apps)
install(FILES ${packaging}/icons/application-x-corvalis-list.svg DESTINATION ${icons}/scalable/mimetypes)

# Not every desktop draws the scalable ones. A tool of ours makes the others, so that the build needs no other.
add_executable(corvalis_render_icon ${packaging}/icons/render.cpp)
target_link_libraries(corvalis_render_icon PRIVATE corvalis_qt_options Qt6::Gui Qt6::Svg)
set_target_properties(corvalis_render_icon PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
set(sizes 16 22 24 32 48 64 128 256)
function(install_sized_icon source name context)
  set(made ${sizes})
  list(TRANSFORM made REPLACE "(.+)" "${CMAKE_BINARY_DIR}/packaging/\\1x\\1-${name}.png")
  add_custom_command(OUTPUT ${made}
    COMMAND corvalis_render_icon ${source} ${CMAKE_BINARY_DIR}/packaging ${name} ${sizes}
    DEPENDS ${source} corvalis_render_icon VERBATIM)
  add_custom_target(icons-${name} ALL DEPENDS ${made})
  add_dependencies(programs icons-${name})
  foreach(size ${sizes})
    install(FILES ${CMAKE_BINARY_DIR}/packaging/${size}x${size}-${name}.png
      DESTINATION ${icons}/${size}x${size}/${context} RENAME ${name}.png)
  endforeach()
endfunction()
install_sized_icon(${PROJECT_SOURCE_DIR}/src/kit/icons/corvalis.svg corvalis apps)
install_sized_icon(${packaging}/icons/application-x-corvalis-list.svg application-x-corvalis-list mimetypes)

# Each shell looks in a folder of its own; zsh and fish have one for what packages bring.
install(FILES ${packaging}/completions/corvalis.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME corvalis)
install(FILES ${packaging}/completions/drutil.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME drutil)
install(FILES ${packaging}/completions/_corvalis DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${packaging}/completions/corvalis.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

# "Write to Disc with Corvalis". Dolphin takes entries that root owns, others would have to be executable.
install(FILES ${packaging}/filemanagers/corvalis.nemo_action DESTINATION ${CMAKE_INSTALL_DATADIR}/nemo/actions)
install(FILES ${packaging}/filemanagers/corvalis-dolphin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/kio/servicemenus
  RENAME corvalis.desktop)
install(FILES ${packaging}/filemanagers/corvalis_nautilus.py DESTINATION ${CMAKE_INSTALL_DATADIR}/nautilus-python/extensions
  RENAME corvalis.py)
