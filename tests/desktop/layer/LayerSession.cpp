#include "desktop/layer/LayerSession.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusUnixFileDescriptor>

#include <array>
#include <fcntl.h>
#include <unistd.h>

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

/// As many bytes as somebody else writes to \p file until its end.
QByteArray readToEnd(int file) {
  QFile pipe;
  return pipe.open(file, QIODevice::ReadOnly) ? pipe.readAll() : QByteArray();
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
  environment.insert(u"WLR_BACKENDS"_s, u"headless"_s);
  environment.insert(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
  environment.insert(u"WLR_RENDERER"_s, u"pixman"_s);
  m_process.start({u"-c"_s, configuration}, environment);
}

void LayerSession::startKWin(int scale) {
  m_display = u"wayland-kwin"_s;
  QProcessEnvironment environment = m_home.variables();
  environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
  environment.insert(u"KWIN_WAYLAND_NO_PERMISSION_CHECKS"_s, u"1"_s);
  environment.insert(u"KWIN_SCREENSHOT_NO_PERMISSION_CHECKS"_s, u"1"_s);
  m_process.start(
      {u"--virtual"_s, u"--width"_s, QString::number(screenSize.width() * scale), u"--height"_s,
       QString::number(screenSize.height() * scale), u"--scale"_s, QString::number(scale),
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
  variables.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
  return variables;
}

QImage LayerSession::picture() const {
  return m_kind == Compositor::sway ? swayPicture() : kwinPicture();
}

QImage LayerSession::swayPicture() const {
  QProcess grim;
  grim.setProcessEnvironment(variables());
  grim.start(u"grim"_s, {u"-t"_s, u"ppm"_s, u"-"_s});
  if (!grim.waitForFinished() || grim.exitCode() != 0) {
    throw HarnessError(u"no picture of the screen: "_s +
                       QString::fromUtf8(grim.readAllStandardError()));
  }
  return QImage::fromData(grim.readAllStandardOutput(), "PPM");
}

QImage LayerSession::kwinPicture() const {
  const auto bus = QDBusConnection::connectToBus(m_bus.address(), u"kwin"_s);
  auto call = QDBusMessage::createMethodCall(u"org.kde.KWin"_s, u"/org/kde/KWin/ScreenShot2"_s,
                                             u"org.kde.KWin.ScreenShot2"_s, u"CaptureWorkspace"_s);
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw HarnessError(u"no pipe for the picture"_s);
  }
  {
    const QDBusUnixFileDescriptor sink(ends[1]);
    close(ends[1]);
    call.setArguments({QVariantMap{{u"native-resolution"_s, true}}, QVariant::fromValue(sink)});
  }
  const QDBusPendingCall pending = bus.asyncCall(call);
  call.setArguments({});
  QDBusMessage reply = pending.reply();
  require(u"the compositor's picture"_s, [&] { return pending.isFinished(); });
  reply = pending.reply();
  if (reply.type() != QDBusMessage::ReplyMessage) {
    close(ends[0]);
    throw HarnessError(u"no picture of the screen: "_s + reply.errorMessage());
  }
  const QByteArray pixels = readToEnd(ends[0]);
  close(ends[0]);
  const auto about = qdbus_cast<QVariantMap>(reply.arguments().constFirst());
  const int width = about[u"width"_s].toInt();
  const int height = about[u"height"_s].toInt();
  const int stride = about[u"stride"_s].toInt();
  if (pixels.size() < qsizetype{stride} * height) {
    throw HarnessError(u"the picture of the screen is not whole"_s);
  }
  return QImage(reinterpret_cast<const uchar *>(pixels.constData()), width, height, stride,
                static_cast<QImage::Format>(about[u"format"_s].toInt()))
      .copy();
}

}  // namespace lanternix
