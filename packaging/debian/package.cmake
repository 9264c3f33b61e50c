# The Debian package: "cpack -G DEB" in a build folder, or packaging/build-deb for one that anybody can
# build again, byte for byte.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veyrand)
set(CPACK_PACKAGE_VENDOR "the Veyrand developers")
set(CPACK_PACKAGE_CONTACT "Veyrand developers <developers@veyrand.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${VEYRAND_HOMEPAGE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "puzzle game of rewriting lines of coloured chips")
set(CPACK_PACKAGE_DESCRIPTION
"Every puzzle gives a start line and a goal line of coloured chips; the player
gets from one to the other by clicking and dragging chips, each of which
rewrites the last line into a new one.
.
There are seven moves, 110 puzzles that teach them one at a time and then ask
more and more of them, and, for those who have come far enough, as many further
puzzles as they like, at the difficulty they like. Hints are computed, not
written: the game knows a shortest way from anywhere.
.
The package also holds veyrand-workshop, with which the puzzles are made.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Neither is linked: OpenAL looks for the sound server's library when it starts, and the letters are a font.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-linuxlibertine, libpulse0")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/before-packing.cmake)
set(CPACK_VEYRAND_OVERRIDES ${CMAKE_CURRENT_LIST_DIR}/lintian-overrides)

include(CPack)
