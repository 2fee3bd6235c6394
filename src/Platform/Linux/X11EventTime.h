#pragma once

#include <QtCore/QtGlobal>

namespace lanternix {

/// The server's time of the user's last action that a door has seen. Window managers take it as the
/// proof that a window asks for the keyboard because of that action.
class X11EventTime {
 public:
  /// 0 until there has been an action.
  quint32 last() const { return m_last; }
  void note(quint32 serverTime) { m_last = serverTime; }

 private:
  quint32 m_last = 0;
};

}  // namespace lanternix
