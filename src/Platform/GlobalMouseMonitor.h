#pragma once

#include <QtCore/QObject>

namespace lanternix {

/// Watches for presses of the left or right mouse button outside the program's own windows. It
/// consumes nothing: the press still reaches its target.
class GlobalMouseMonitor : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Starts or stops watching. While stopped, presses do not wake the program.
  virtual void setActive(bool active) = 0;

 Q_SIGNALS:
  void pressedOutside();
};

/// Stands where the system does not tell of presses in other programs.
class NullGlobalMouseMonitor : public GlobalMouseMonitor {
  Q_OBJECT

 public:
  using GlobalMouseMonitor::GlobalMouseMonitor;
  void setActive(bool active) override;
};

}  // namespace lanternix
