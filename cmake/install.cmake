# What "cmake --install" puts where, and the Debian package that "cpack" makes of it.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
install(TARGETS zol zol-batch zol-script RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/zol)
install(FILES packaging/zol.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/io.github.zol.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME io.github.zol.xml)
set(ZOL_HOMEPAGE "" CACHE STRING "Address of the project, for metainfo and package; without one they name none")
set(ZOL_SCREENSHOTS "" CACHE STRING "Address of the folder docs/images; empty: docs/images below ZOL_HOMEPAGE")
set(metainfo ${CMAKE_BINARY_DIR}/io.github.zol.metainfo.xml)
include(packaging/metainfo.cmake)
install(FILES ${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES shell/desktop/images/zol.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/zol.1 packaging/zol-script.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# Those of zol-batch are made with it.
set(batch_reference ${CMAKE_BINARY_DIR}/batch/reference)
install(DIRECTORY ${batch_reference}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 FILES_MATCHING PATTERN *.1)
install(FILES ${batch_reference}/zol-batch.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME zol-batch)
install(FILES ${batch_reference}/_zol-batch DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${batch_reference}/zol-batch.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

install(DIRECTORY docs/user-guide docs/images DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN draw EXCLUDE)
install(PROGRAMS examples/batch/crystallite-sizes examples/batch/reflection-lists
  DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples/batch)
install(PROGRAMS examples/orientation/euler.py DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples/orientation)
install(DIRECTORY docs/names DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES docs/data-files.md docs/scripting.md docs/theory.md docs/theory-dynamical.md docs/validation.md
  CHANGELOG.md CITATION.cff DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The examples name their crystals as in the source tree, from the folder above them.
install(CODE "file(CREATE_LINK ../../zol \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DOCDIR}/data\" SYMBOLIC)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "ZOL developers")
# No mail reaches a host below .invalid (RFC 2606): whoever publishes the package gives an address.
set(ZOL_DEBIAN_MAINTAINER "ZOL developers <no-address@zol.invalid>" CACHE STRING
  "Name <address> of who publishes the Debian package")
set(CPACK_PACKAGE_CONTACT "${ZOL_DEBIAN_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${ZOL_HOMEPAGE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reflection lists and diffraction patterns of a crystal")
set(CPACK_PACKAGE_DESCRIPTION
"A workbench for crystallographers and electron microscopists. It holds one
crystal, computes its reflections with structure factors for X-rays or
electrons, and draws powder diagrams, Debye rings, spot, fiber texture and
Kikuchi patterns of it. It also finds the orientation of a crystal from a
measured Kikuchi pattern (EBSD), and indexes whole scans.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian_files.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
# Beside the libraries: what Qt loads when it runs, for the screen and for icons, and a font with all signs of the lists.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, libqt6svg6, qt6-image-formats-plugins, qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland")
include(CPack)
