#pragma once

#include "desktop/CompositedTest.h"

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

  /// What a hand needs between two keys when it is quick.
  static void waitAsAQuickHand() { std::this_thread::sleep_for(std::chrono::milliseconds(20)); }
};

}  // namespace lanternix
