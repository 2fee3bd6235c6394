#pragma once

#include "desktop/wayland/WaylandInput.h"
#include "support/ChildProcess.h"
#include "support/ProgramEnvironment.h"
#include "support/SessionBus.h"

#include <QtCore/QJsonObject>
#include <QtGui/QImage>

#include <memory>
#include <optional>

namespace lanternix {

/// A session of the compositor sway on a screen that is only memory, with a bus, a home directory,
/// a keyboard and a mouse. Nothing moves in it: windows come and go at once.
class SwaySession {
 public:
  /// Whether the compositor starts a server for X programs. Without one there is no DISPLAY.
  enum class XServer { yes, no };

  /// \p configuration are lines of sway's configuration beside the session's own.
  explicit SwaySession(const QString &configuration = {}, XServer xServer = XServer::yes);

  static constexpr QSize screenSize{1280, 800};

  ProgramEnvironment &home() { return m_home; }
  WaylandInput &input() { return *m_input; }
  SessionBus &bus() { return m_bus; }
  const QString &displayName() const { return m_displayName; }
  QString ipcSocket() const { return m_home.path(QStringLiteral("run/sway.sock")); }

  /// The variables of programs in this session.
  QProcessEnvironment variables() const;

  /// Runs one of sway's commands; throws when sway refuses it.
  void command(const QString &line) const;
  /// Presses and releases the left button there, as slowly as sway takes commands.
  void click(QPoint position) const;

  /// The window with this title as sway describes it, while it is on the screen.
  std::optional<QJsonObject> window(const QString &title) const;

  /// A picture of the screen. Needs grim.
  QImage picture() const;
  /// Saves one in which nothing moves any more.
  void savePicture(const QString &path) const;

 private:
  QByteArray run(const QString &program, const QStringList &arguments) const;
  void waitForSocketNames();

  ProgramEnvironment m_home;
  SessionBus m_bus;
  ChildProcess m_sway;
  QString m_displayName;
  QString m_waylandDisplay;
  std::unique_ptr<WaylandInput> m_input;
};

}  // namespace lanternix
