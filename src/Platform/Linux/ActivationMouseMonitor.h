#pragma once

#include "Platform/GlobalMouseMonitor.h"

#include <QtCore/QDeadlineTimer>

namespace lanternix {

/// Where presses in other programs cannot be seen: what such a press does is seen instead, which is
/// to take the keyboard from the program. It takes for a press whatever else does so. A menu, an
/// alert or another window of the program's own is no other program, and that a window was hidden
/// shortly before counts for nothing either.
class ActivationMouseMonitor : public GlobalMouseMonitor {
  Q_OBJECT

 public:
  /// Only with a QGuiApplication.
  ActivationMouseMonitor();

  void setActive(bool active) override;

 private:
  void lose();

  bool m_active = false;
  /// Until then, the keyboard is lost because a window was hidden that had it when watching began.
  QDeadlineTimer m_lateLoss;
};

}  // namespace lanternix
