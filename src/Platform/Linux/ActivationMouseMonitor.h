#pragma once

#include "Platform/GlobalMouseMonitor.h"

#include <QtCore/QDeadlineTimer>

namespace lanternix {

/// Where presses in other programs cannot be seen: what such a press does is seen instead, which is
/// to take the keyboard from the program. It takes for a press whatever else does so. A menu, an
/// alert or another window of the program's own is no other program.
class ActivationMouseMonitor : public GlobalMouseMonitor {
  Q_OBJECT

 public:
  /// What Qt tells of the keyboard that a window loses by being hidden, when a window is shown
  /// again before the window system has said so: nothing, or the loss, which is no press then.
  enum class LossByHiding { untold, toldLate };

  /// Only with a QGuiApplication.
  explicit ActivationMouseMonitor(LossByHiding lossByHiding);

  void setActive(bool active) override;

 private:
  void lose();

  const LossByHiding m_lossByHiding;
  bool m_active = false;
  /// Until then, the keyboard is lost because a window was hidden that had it when watching began.
  QDeadlineTimer m_lateLoss;
};

}  // namespace lanternix
