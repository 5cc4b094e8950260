# The Debian package, which packaging/build-deb makes of what is installed; its dependencies are read from the programs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvellecp)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The OrvelleCP developers <developers@orvelle.net>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://orvelle.net/orvellecp/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "radios, voice and push-to-talk for flight simulation")
set(CPACK_PACKAGE_DESCRIPTION
"Orvelle Control Panel sits beside a flight simulator. It watches what the two
radios are tuned to, starts, joins and leaves the voice program that serves
the tuned channel on this computer, and takes keys and joystick buttons
pressed on the simulator's computer over to this one as push-to-talk and key
strokes.
.
Several computers can share the voice duties: the simulator's one brings a
broker, which is mosquitto. A computer alone can practise with the flight deck
beside the panel.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The broker, and what fetches directories of channels, are asked for on the simulator's computer alone, and the daemon
# where set-ups are to find each other.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "avahi-daemon, ca-certificates, curl, gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, mosquitto, qt6-wayland")
# A voice server is asked for on one computer of a whole community.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "mumble-server, sqlite3")

configure_file(debian/changelog ${CMAKE_CURRENT_BINARY_DIR}/debian/changelog @ONLY)
configure_file(debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/debian/copyright COPYONLY)
set(ORVELLE_DEBIAN_DOCUMENTS ${CMAKE_CURRENT_BINARY_DIR}/debian)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/Documents.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/debian/Project.cmake)
file(WRITE ${CPACK_PROJECT_CONFIG_FILE} "set(ORVELLE_DEBIAN_DOCUMENTS \"${ORVELLE_DEBIAN_DOCUMENTS}\")\n")
include(CPack)
