# The Debian package, made by the target "package".
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
# Below a staging directory rather than into it, so that paths in files are those of the users.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
                                                GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};lanternix;ALL;/"
                                 "${CMAKE_BINARY_DIR};lanternix;debian;/")

set(CPACK_PACKAGE_NAME lanternix)
set(CPACK_PACKAGE_VENDOR "The Lanternix developers")
set(CPACK_PACKAGE_CONTACT "The Lanternix developers <developers@lanternix.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://lanternix.org/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "quick launcher for directories, files and links")
set(CPACK_PACKAGE_DESCRIPTION
    "Keeps named groups of directories, files, links and shell commands. A global
shortcut toggles a floating panel; a few letters and Return open the thing.
It is there at once, waits without using the processor, and keeps all data in
one readable document with daily backups.")

# The changelog's first line names what is packaged, such as "lanternix (1.0.0-1) stable".
file(STRINGS debian/changelog newest LIMIT_COUNT 1)
if(NOT newest MATCHES "^lanternix \\(${PROJECT_VERSION}-([0-9]+)\\)")
  message(FATAL_ERROR "packaging/debian/changelog does not begin with version ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
file(READ ${PROJECT_SOURCE_DIR}/resources/desktop/org.lanternix.Lanternix.metainfo.xml metainfo)
if(NOT metainfo MATCHES "<releases>[ \n]*<release version=\"${PROJECT_VERSION}\" date=\"([0-9-]+)\"")
  message(FATAL_ERROR "The metainfo's newest release is not version ${PROJECT_VERSION}")
endif()
set(released "${PROJECT_VERSION} - ${CMAKE_MATCH_1}")
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md headings REGEX "^## [0-9]")
list(GET headings 0 newest)
if(NOT newest STREQUAL "## ${released}")
  message(FATAL_ERROR "CHANGELOG.md's newest release is \"${newest}\", not \"## ${released}\"")
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# No library asks for what Qt loads by itself: the plug-ins for window systems and for drawings in
# icon themes. Those for Wayland serve a session that has no X server. The rest is there on every
# desktop, and missed only in part where it is not.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "default-dbus-session-bus | dbus-session-bus, libglib2.0-bin, qt6-svg-plugins | libqt6svg6 (<< 6.8), qt6-wayland, shared-mime-info")
if(LayerShellQt_FOUND)
  string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS ", layer-shell-qt")
endif()
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "at-spi2-core")

include(CPack)
