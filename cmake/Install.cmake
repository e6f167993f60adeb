# cmake --install: the program with its libraries, plug-in, supervisor, examples and documentation. In the build tree, the
# program finds the examples and the documentation through links at the same relative places.
include(GNUInstallDirs)

set(shared ${CMAKE_INSTALL_DATADIR}/merix)
install(TARGETS merix merix-supervisor RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS merixcore merixdesign lodm merixgui LIBRARY DESTINATION lib/merix)
install(TARGETS genericintegration LIBRARY DESTINATION lib/merix/plugins)
install(DIRECTORY examples docs DESTINATION ${shared})
install(FILES README.md DESTINATION ${shared})
install(FILES merix/merix.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES merix/merix-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME merix.xml)
install(FILES host/gui/icons/merix.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

set_target_properties(merix PROPERTIES INSTALL_RPATH "$ORIGIN/../lib/merix")
set_target_properties(merixdesign lodm merixgui PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(genericintegration PROPERTIES INSTALL_RPATH "$ORIGIN/..")

file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share/merix)
foreach(folder examples docs)
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${CMAKE_BINARY_DIR}/share/merix/${folder} SYMBOLIC)
endforeach()
