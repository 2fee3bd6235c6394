#pragma once

#include "desktop/CompositedTest.h"

#include <X11/keysym.h>
#include <thread>

namespace lanternix {

/// A behaviour that users meet on every window manager, tested on the one that the environment
/// chooses (see WindowManager), with the blending that it chooses. Where a window manager forbids
/// the behaviour, the test says why and skips.
class WindowManagerTest : public CompositedTest {
 protected:
  explicit WindowManagerTest(QSize screenSize = {1280, 900},
                             VirtualDisplay::Outputs outputs = VirtualDisplay::Outputs::one)
      : CompositedTest(
            chosenBlending() == Blending::compositor ? Compositing::on : Compositing::off,
            DesktopSession::WithManager::yes, screenSize, outputs) {}

  const WindowManager &manager() { return *session().windowManager(); }

  /// Why the window manager forbids a behaviour, as the table of all of them shows it.
  static std::string because(const QString &reason) { return reason.toStdString(); }

  /// Whether the environment asks for one window manager, as for the table of all of them.
  static bool isForTheTable() { return qEnvironmentVariableIsSet("LANTERNIX_WINDOW_MANAGER"); }

  /// Types into \p client until it has got every key, so that it is the one the user works with.
  void workIn(OtherClient &client) {
    client.takeFocus();
    input().type(QStringLiteral("make"));
    require(QStringLiteral("the other program's keys"), [&] { return client.keys().size() == 4; });
  }

  /// Holds Alt for that many taps on Tab, each of which the window manager is ready for; but see
  /// countsSteps(). A first tap that has no effect is done again.
  void switchBy(int steps) {
    OtherClient observer(session().displayName());
    require(QStringLiteral("the keys of the switcher"),
            [&] { return observer.isKeyTaken(XK_Tab, XCB_MOD_MASK_1); });
    input().press(XK_Alt_L);
    require(QStringLiteral("the switcher"), [&] {
      input().tap(XK_Tab);
      return waitUntil([&] { return observer.isKeyboardTaken(); }, std::chrono::seconds(1));
    });
    for (int step = 1; step < steps; ++step) {
      manager().settle();
      input().tap(XK_Tab);
    }
    manager().settle();
    input().release(XK_Alt_L);
  }

  /// KWin hears of the taps from another program until it has opened its switcher, and misses some.
  bool countsSteps() { return manager().name() != QStringLiteral("kwin_x11"); }

  /// What a hand needs between two keys when it is quick.
  static void waitAsAQuickHand() { std::this_thread::sleep_for(std::chrono::milliseconds(20)); }
};

}  // namespace lanternix
