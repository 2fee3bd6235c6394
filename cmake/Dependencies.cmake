# Everything the program and its tests link against, found in one place.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Svg DBus)
find_package(PkgConfig REQUIRED)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-shape xcb-sync xcb-xfixes xcb-xinput)
pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0 gio-unix-2.0)
# For Qt 6 from its sixth version on. Without it, the panel is an ordinary window on Wayland.
find_package(LayerShellQt 6 QUIET)
if(LayerShellQt_FOUND)
  pkg_check_modules(WAYLAND REQUIRED IMPORTED_TARGET wayland-client)
endif()

if(LANTERNIX_TESTS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Network Test)
  find_package(GTest REQUIRED)
  find_package(benchmark REQUIRED)
  pkg_check_modules(XCB_TEST REQUIRED IMPORTED_TARGET xcb xcb-xtest xcb-damage xcb-keysyms xcb-shape)
endif()
