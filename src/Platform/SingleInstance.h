#pragma once

#include <QtCore/QObject>

namespace lanternix {

/// Sees to one running program per session.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// True when this program is now the session's one. False when another one is running; that one
  /// has then been asked to show its panel.
  virtual bool claim() = 0;

 Q_SIGNALS:
  /// Another start of the program asks this one to show its panel.
  void showRequested();
};

}  // namespace lanternix
