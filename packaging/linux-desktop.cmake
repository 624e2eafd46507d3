# Installs what a Linux desktop needs to show the bundle as a program, and makes a Debian package of
# both. The component "desktop" expects the component "launcher" in lib/tarnwell below its prefix.
set(TARNWELL_LICENCE LicenseRef-proprietary CACHE STRING
    "Licence of what is shipped, an SPDX expression")
set(TARNWELL_MAINTAINER "" CACHE STRING
    "Maintainer of the Debian package, NAME <ADDRESS> (default: DEBFULLNAME, DEBEMAIL)")
set(TARNWELL_DEPENDS "" CACHE STRING
    "Packages that the client needs in addition to the launcher's, as in the field Depends")

install(CODE "set(licence \"${TARNWELL_LICENCE}\")
    set(launcher_licence \"${PROJECT_SOURCE_DIR}/LICENSE\")"
    COMPONENT desktop EXCLUDE_FROM_ALL)
install(SCRIPT read-client.cmake COMPONENT desktop EXCLUDE_FROM_ALL)
install(SCRIPT add-desktop.cmake COMPONENT desktop EXCLUDE_FROM_ALL)

configure_file(debian-version.cmake.in debian-version.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_BINARY_DIR}/debian-version.cmake")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnwell)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Keeps files in sync with a server")
set(CPACK_PACKAGE_DESCRIPTION "The launcher in this package installs the client in each user's home folder,\n\
keeps it up to date and starts it.")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};tarnwell-launcher;launcher;/usr/lib/tarnwell"
    "${PROJECT_BINARY_DIR};tarnwell-launcher;desktop;/usr")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${TARNWELL_DEPENDS}")
set(CPACK_STRIP_FILES ON)
include(CPack)
