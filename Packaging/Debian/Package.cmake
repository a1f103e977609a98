# The Debian package: cpack packs what `cmake --install` puts under /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_NAME fernwick)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Fernwick developers <developers@fernwick.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calm snake game in a night garden")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${FERNWICK_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"You steer a snake through a dark garden, gather the fruit and grow a little
longer. Three speeds, each with its own personal best and top ten.
.
The game opens in full screen and is playable with just the keyboard, on X11
or Wayland, on any keyboard layout. It supports screen readers, reduced motion
and high contrast, and uses no network.")
# dpkg-shlibdeps finds the linked libraries; libpulse is loaded with dlopen(). Recommended: Qt's
# Wayland plugin and a sound server. Suggested: the screen readers' bus, and fonts for scripts that
# the embedded fonts lack.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libpulse0")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, pipewire-pulse | pulseaudio")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "at-spi2-core, fonts-noto-core, fonts-noto-cjk")

set(FERNWICK_DEBIAN_FOLDER ${CMAKE_CURRENT_LIST_DIR})
configure_file(${CMAKE_CURRENT_LIST_DIR}/Stage.cmake.in
               ${CMAKE_CURRENT_BINARY_DIR}/Stage.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/Stage.cmake)
include(CPack)
