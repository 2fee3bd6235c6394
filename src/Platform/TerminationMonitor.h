#pragma once

#include <QtCore/QObject>

namespace lanternix {

/// Tells when the system wants the program to end. As long as it exists the program is not ended
/// there and then, so that it can put everything in order.
class TerminationMonitor : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 Q_SIGNALS:
  void terminationRequested();
};

}  // namespace lanternix
