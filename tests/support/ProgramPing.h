#pragma once

#include "support/XConnection.h"

namespace lanternix {

/// Asks a program whether it is still there, as window managers do. The answer tells that it has
/// dealt with all events of its window that came before.
class ProgramPing {
 public:
  ProgramPing(const QString &displayName, xcb_window_t window);

  /// Returns once the program has answered; throws when it never does.
  void waitForAnswer();

 private:
  void ask();
  bool isAnswered();

  XConnection m_connection;
  xcb_window_t m_window;
  quint32 m_number = 1;
};

}  // namespace lanternix
