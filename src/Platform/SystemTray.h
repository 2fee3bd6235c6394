#pragma once

#include <QtCore/QObject>

namespace lanternix {

/// Where the desktop shows the icons of programs that run without a window.
class SystemTray : public QObject {
  Q_OBJECT

 public:
  enum class Kind {
    /// There is no tray, or it is not known yet whether there is one.
    none,
    /// The tray draws icon and menu itself.
    drawing,
    /// The tray takes in a small window of the program's, which draws its icon and opens its menu.
    embedding,
  };

  using QObject::QObject;

  /// What is there as far as it is known by now. The first answer may come as a change.
  virtual Kind kind() const = 0;

  /// Whether the tray is known to be dark, whatever the windows look like.
  virtual bool isAlwaysDark() const = 0;

 Q_SIGNALS:
  void changed();
};

/// Stands where there never is a tray.
class NullSystemTray : public SystemTray {
  Q_OBJECT

 public:
  using SystemTray::SystemTray;
  Kind kind() const override;
  bool isAlwaysDark() const override;
};

}  // namespace lanternix
