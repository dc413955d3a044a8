# What `cmake --install` puts in place beside the two programs, and the Debian package that
# CPack makes of it. A package is built with CMAKE_INSTALL_PREFIX=/usr, so that the paths
# written into the installed files are those the package installs to.
include(GNUInstallDirs)

set(SVGFIGURER_DATA ${PROJECT_SOURCE_DIR}/data)
set(SVGFIGURER_ID net.quivane.SVGFigurer)

install(FILES ${SVGFIGURER_DATA}/${SVGFIGURER_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${SVGFIGURER_DATA}/${SVGFIGURER_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${SVGFIGURER_DATA}/${SVGFIGURER_ID}.mime.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME ${SVGFIGURER_ID}.xml)
install(FILES ${SVGFIGURER_DATA}/${SVGFIGURER_ID}.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The bus starts the program by its absolute path when a call arrives and it is not running.
set(SVGFIGURER_APP_PATH ${CMAKE_INSTALL_FULL_BINDIR}/svgfigurer-app)
configure_file(${SVGFIGURER_DATA}/${SVGFIGURER_ID}.service.in
               ${CMAKE_CURRENT_BINARY_DIR}/data/${SVGFIGURER_ID}.service @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/data/${SVGFIGURER_ID}.service
        DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)

# Manual pages made from each program's --help and --version.
find_program(HELP2MAN help2man)
if(HELP2MAN)
  set(manual_pages)
  foreach(program_and_name
          "svgfigurer|convert SVG to SwiftUI code from the command line"
          "svgfigurer-app|edit SVG and see the SwiftUI code that draws it")
    string(REPLACE "|" ";" program_and_name "${program_and_name}")
    list(GET program_and_name 0 program)
    list(GET program_and_name 1 summary)
    if(NOT TARGET ${program})
      continue()
    endif()
    set(page ${CMAKE_CURRENT_BINARY_DIR}/man/${program}.1)
    add_custom_command(
      OUTPUT ${page}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/man
      COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
              ${HELP2MAN} --no-info --section=1 "--name=${summary}"
              --output=${page} $<TARGET_FILE:${program}>
      DEPENDS ${program}
      COMMENT "Writing the manual page of ${program}"
      VERBATIM)
    list(APPEND manual_pages ${page})
  endforeach()
  add_custom_target(manpages ALL DEPENDS ${manual_pages})
  install(FILES ${manual_pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
else()
  message(STATUS "help2man not found: no manual pages")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME svgfigurer)
set(CPACK_PACKAGE_VENDOR Quivane)
set(CPACK_PACKAGE_CONTACT "SVGFigurer developers <svgfigurer@quivane.net>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "SVG to SwiftUI code: desktop editor and command line")
set(CPACK_PACKAGE_DESCRIPTION
    "SVGFigurer shows the text of an SVG image, the SwiftUI source code that draws it and a \
rendered preview side by side, and offers the conversion to other programs on the session bus. \
The svgfigurer command converts in a terminal.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The service and the single-instance hand-off need a session bus; the program runs without.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "dbus-user-session | dbus-x11")
set(CPACK_STRIP_FILES ON)
include(CPack)
