#pragma once

#include "desktop/wayland/WaylandInput.h"
#include "support/ChildProcess.h"
#include "support/ProgramEnvironment.h"
#include "support/SessionBus.h"
#include "support/VirtualDisplay.h"
#include "support/WindowProbe.h"

#include <QtGui/QImage>

#include <memory>

namespace lanternix {

/// A session of a compositor that has a layer shell, on a screen that is only memory, with a bus, a
/// home directory, a keyboard and a mouse. There is no server for X programs.
class LayerSession {
 public:
  enum class Compositor { sway, kwin };

  /// The screen has screenSize in logical pixels, \p scale times as many real ones.
  explicit LayerSession(Compositor compositor, int scale = 1);

  static constexpr QSize screenSize{1280, 800};
  /// What a bar at the top leaves of the screen.
  QRect workArea() const;

  ProgramEnvironment &home() { return m_home; }
  SessionBus &bus() { return m_bus; }
  WaylandInput &input() { return *m_input; }
  /// The variables of programs in this session, which are told to speak Wayland.
  QProcessEnvironment variables() const;

  /// Plugs in a second screen of the same size and goes there. Sway only.
  void plugScreen() const;
  /// Unplugs it again.
  void unplugScreen() const;

  /// Goes to an empty workspace. Sway only.
  void switchWorkspace() const;

  /// A picture of the screen, in real pixels; of both side by side, while there are two.
  QImage picture() const;

 private:
  void startSway(int scale);
  void startKWin(int scale);
  QString swaySocket() const { return m_home.path(QStringLiteral("run/sway.sock")); }
  QString socket() const { return m_home.path(QStringLiteral("run/") + m_display); }
  QImage swayPicture() const;
  QByteArray run(const QString &program, const QStringList &arguments) const;

  Compositor m_kind;
  ProgramEnvironment m_home;
  SessionBus m_bus;
  QString m_display;
  /// Where KWin draws its screen.
  std::unique_ptr<VirtualDisplay> m_host;
  std::unique_ptr<WindowProbe> m_hostWindows;
  ChildProcess m_process;
  std::unique_ptr<WaylandInput> m_input;
};

}  // namespace lanternix
