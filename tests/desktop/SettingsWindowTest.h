#pragma once

#include "desktop/DesktopTest.h"
#include "support/AccessibilityBus.h"

#include <X11/keysym.h>
#include <array>

namespace lanternix {

/// A test of the settings window of the built program. Its controls are found as a screen reader
/// finds them, and pressed where they are.
class SettingsWindowTest : public DesktopTest {
 protected:
  /// Starts the program and opens the settings from the panel.
  void openSettings() {
    start(commands({QStringLiteral("Build")}));
    pressSettingsKeys();
    requireSettings();
  }
  void pressSettingsKeys() { input().tap(XK_comma, {XK_Control_L}); }

  /// The window; none before it is first opened.
  std::optional<xcb_window_t> findSettings() {
    return session().windows().find(QStringLiteral("lanternix"),
                                    QStringLiteral("Lanternix Settings"));
  }
  xcb_window_t settings() { return findSettings().value(); }
  bool areSettingsShown() {
    const auto window = findSettings();
    return window.has_value() && session().windows().isViewable(*window);
  }
  bool becomeActive() {
    return waitUntil(
        [this] { return areSettingsShown() && session().windows().hasFocus(settings()); });
  }
  void requireSettings() {
    require(QStringLiteral("the settings to open with the keyboard"),
            [this] { return areSettingsShown() && session().windows().hasFocus(settings()); });
  }
  void closeSettings() {
    input().tap(XK_w, {XK_Control_L});
    require(QStringLiteral("the settings to close"), [this] { return !areSettingsShown(); });
  }

  /// Asks the window manager, as a pager does, to move the window's frame.
  void moveSettings(QPoint corner) {
    const XConnection &connection = session().windows().connection();
    const std::array<int, 2> place{corner.x(), corner.y()};
    xcb_configure_window(connection, settings(), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                         place.data());
    connection.sync();
  }

  AccessibilityBus::Node window(const QString &title) {
    return reader.find(reader.program(QStringLiteral("Lanternix")), QStringLiteral("frame"), title);
  }
  AccessibilityBus::Node control(const QString &role, const QString &name) {
    return reader.find(window(QStringLiteral("Lanternix Settings")), role, name);
  }
  void click(const AccessibilityBus::Node &node) { input().click(reader.geometry(node).center()); }
  void showTab(const QString &name) { click(control(QStringLiteral("page tab"), name)); }

  AccessibilityBus reader{session().variables()};
};

}  // namespace lanternix
