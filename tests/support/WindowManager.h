#pragma once

#include "support/ChildProcess.h"
#include "support/SessionBus.h"
#include "support/WindowManagerRecipe.h"
#include "support/XConnection.h"

#include <QtCore/QTemporaryDir>

#include <memory>

namespace lanternix {

class VirtualDisplay;

/// Who blends windows with what is below them while the tests run.
enum class Blending { nobody, compositor, windowManager };

/// What LANTERNIX_COMPOSITOR says: "none", as also when it is not set, "picom", or "own", the
/// window manager itself. Throws for any other word.
Blending chosenBlending();

/// A window manager with a configuration of the harness's own: the one that
/// LANTERNIX_WINDOW_MANAGER names, openbox unless it is set.
class WindowManager {
 public:
  /// Height of the strip at the top of the screen that does not belong to the work area (openbox).
  static constexpr int topMargin = reservedStrip;

  /// Starts it and returns once it manages the display.
  explicit WindowManager(const VirtualDisplay &display);

  /// Returns once it has dealt with everything that happened on the display until now.
  void settle() const;

  qint64 processId() const { return m_process.processId(); }
  /// As its program is called.
  const QString &name() const { return m_recipe.program; }
  /// Whether Alt+Tab walks through the windows.
  bool hasSwitcher() const { return m_recipe.hasSwitcher; }
  /// Whether it arranges windows side by side.
  bool tiles() const { return m_recipe.tiles; }

  /// Makes another desktop the present one; the first has the number 0.
  void switchToDesktop(int desktop) const;

 private:
  QProcessEnvironment prepareHome(const VirtualDisplay &display);
  bool isManaging() const;

  /// One for all questions: a next one might get the windows' numbers again and, with them, answers
  /// to the questions of the one before.
  XConnection m_connection;
  QTemporaryDir m_home;
  WindowManagerRecipe m_recipe;
  QProcessEnvironment m_environment;
  std::unique_ptr<SessionBus> m_bus;
  ChildProcess m_process;
};

}  // namespace lanternix
