#include "desktop/layer/LayerSession.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr int barHeight = 30;

QString programOf(LayerSession::Compositor compositor) {
  return compositor == LayerSession::Compositor::sway ? u"sway"_s : u"kwin_wayland"_s;
}

QString packageOf(LayerSession::Compositor compositor) {
  return compositor == LayerSession::Compositor::sway ? u"sway"_s : u"kwin-wayland"_s;
}

}  // namespace

LayerSession::LayerSession(Compositor compositor, int scale)
    : m_kind(compositor), m_process(programOf(compositor), packageOf(compositor)) {
  if (compositor == Compositor::sway) {
    startSway(scale);
  } else {
    startKWin(scale);
  }
  const bool isUp = waitUntil([this] { return QFile::exists(socket()) || !m_process.isRunning(); });
  if (!isUp || !m_process.isRunning()) {
    throw HarnessError(u"the compositor did not come up: "_s +
                       QString::fromUtf8(m_process.errors()));
  }
  m_input = std::make_unique<WaylandInput>(socket(), screenSize);
}

void LayerSession::startSway(int scale) {
  m_display = u"wayland-1"_s;  // sway takes the first that is free
  const QString configuration = m_home.path(u"sway.conf"_s);
  ProgramEnvironment::write(
      configuration,
      u"output * mode %1x%2 scale %3 bg #607890 solid_color\n"
      "default_border none\n"
      "bar {\n position top\n height %4\n tray_output none\n workspace_buttons no\n}\n"_s
          .arg(screenSize.width() * scale)
          .arg(screenSize.height() * scale)
          .arg(scale)
          .arg(barHeight)
          .toUtf8());
  QProcessEnvironment environment = m_home.variables();
  environment.insert(u"SWAYSOCK"_s, swaySocket());
  environment.insert(u"WLR_BACKENDS"_s, u"headless"_s);
  environment.insert(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
  environment.insert(u"WLR_RENDERER"_s, u"pixman"_s);
  m_process.start({u"-c"_s, configuration}, environment);
}

// It draws into a window of an X server, since it gives no pictures of its own without a graphics
// card.
void LayerSession::startKWin(int scale) {
  m_display = u"wayland-kwin"_s;
  m_host = std::make_unique<VirtualDisplay>(screenSize * scale);
  m_hostWindows = std::make_unique<WindowProbe>(m_host->name());
  QProcessEnvironment environment = m_home.variables();
  environment.insert(u"DISPLAY"_s, m_host->name());
  environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
  environment.insert(u"KWIN_WAYLAND_NO_PERMISSION_CHECKS"_s, u"1"_s);
  m_process.start(
      {u"--x11-display"_s, m_host->name(), u"--width"_s, QString::number(screenSize.width()),
       u"--height"_s, QString::number(screenSize.height()), u"--scale"_s, QString::number(scale),
       u"--no-lockscreen"_s, u"--no-global-shortcuts"_s, u"--socket"_s, m_display},
      environment);
}

QRect LayerSession::workArea() const {
  const QRect screen(QPoint(), screenSize);
  return m_kind == Compositor::sway ? screen.adjusted(0, barHeight, 0, 0) : screen;
}

QProcessEnvironment LayerSession::variables() const {
  QProcessEnvironment variables = m_home.variables();
  variables.insert(u"XDG_SESSION_TYPE"_s, u"wayland"_s);
  variables.insert(u"WAYLAND_DISPLAY"_s, m_display);
  variables.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
  variables.insert(u"SWAYSOCK"_s, swaySocket());
  variables.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
  return variables;
}

QImage LayerSession::picture() const {
  return m_kind == Compositor::sway ? swayPicture() : m_hostWindows->grabRoot();
}

void LayerSession::plugScreen() const {
  run(u"swaymsg"_s, {u"create_output"_s});
  run(u"swaymsg"_s, {u"focus output HEADLESS-2"_s});
}

void LayerSession::unplugScreen() const {
  run(u"swaymsg"_s, {u"output HEADLESS-2 unplug"_s});
}

void LayerSession::switchWorkspace() const {
  run(u"swaymsg"_s, {u"workspace another"_s});
}

QImage LayerSession::swayPicture() const {
  return QImage::fromData(run(u"grim"_s, {u"-t"_s, u"ppm"_s, u"-"_s}), "PPM");
}

QByteArray LayerSession::run(const QString &program, const QStringList &arguments) const {
  QProcess process;
  process.setProcessEnvironment(variables());
  process.start(program, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    throw HarnessError(u"%1: %2"_s.arg(program, QString::fromUtf8(process.readAllStandardError())));
  }
  return process.readAllStandardOutput();
}

}  // namespace lanternix
