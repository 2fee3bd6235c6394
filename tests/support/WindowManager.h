#pragma once

#include "support/ChildProcess.h"
#include "support/XConnection.h"

#include <QtCore/QTemporaryDir>

namespace lanternix {

class VirtualDisplay;

/// A window manager (openbox) with a configuration of the harness's own: two desktops, focus by
/// click, a reserved strip at the top so that work area and screen differ, and no key bindings.
class WindowManager {
 public:
  /// Height of the strip at the top of the screen that does not belong to the work area.
  static constexpr int topMargin = 40;

  /// Starts it and returns once it manages the display.
  explicit WindowManager(const VirtualDisplay &display);

  /// Returns once it has dealt with everything that happened on the display until now.
  void settle() const;

 private:
  /// One for all questions: a next one might get the windows' numbers again and, with them, answers
  /// to the questions of the one before.
  XConnection m_connection;
  QTemporaryDir m_home;
  ChildProcess m_process;
};

}  // namespace lanternix
