# Run by cpack on the files of the Debian package before it is packed: what a package has beside an installation.
find_program(gzip gzip REQUIRED)
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${share}/doc/zol/changelog
"zol (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * CHANGELOG.md in this folder lists what there is.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
file(GLOB pages ${share}/man/man1/*.1)
if(NOT pages)
  message(FATAL_ERROR "no man pages in ${share}/man/man1")
endif()
file(CHMOD ${share}/doc/zol/changelog PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
execute_process(COMMAND ${gzip} -9n ${pages} ${share}/doc/zol/changelog COMMAND_ERROR_IS_FATAL ANY)
