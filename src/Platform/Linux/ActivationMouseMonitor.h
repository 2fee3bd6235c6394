#pragma once

#include "Platform/GlobalMouseMonitor.h"

namespace lanternix {

/// Where presses in other programs cannot be seen: what such a press does is seen instead, which is
/// to take the keyboard from the program. It takes for a press whatever else does so. A menu, an
/// alert or another window of the program's own is no other program.
class ActivationMouseMonitor : public GlobalMouseMonitor {
  Q_OBJECT

 public:
  /// Only with a QGuiApplication.
  ActivationMouseMonitor();

  void setActive(bool active) override { m_active = active; }

 private:
  bool m_active = false;
};

}  // namespace lanternix
