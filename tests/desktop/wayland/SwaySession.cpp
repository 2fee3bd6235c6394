#include "desktop/wayland/SwaySession.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>

#include <utility>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

std::optional<QJsonObject> findWindow(const QJsonObject &node, const QString &title) {
  if (node["pid"_L1].isDouble() && node["name"_L1].toString() == title) {
    return node;
  }
  for (const auto list : {"nodes"_L1, "floating_nodes"_L1}) {
    const QJsonArray children = node[list].toArray();
    for (const QJsonValue &child : children) {
      if (auto found = findWindow(child.toObject(), title)) {
        return found;
      }
    }
  }
  return std::nullopt;
}

}  // namespace

SwaySession::SwaySession(const QString &configuration, XServer xServer)
    : m_sway(u"sway"_s, u"sway"_s) {
  const QString names = m_home.path(u"names"_s);
  ProgramEnvironment::write(
      m_home.path(u"sway.conf"_s),
      u"xwayland %1\noutput HEADLESS-1 resolution %2x%3\ndefault_border none\n"
      "exec 'printf \"%s %s\" \"$DISPLAY\" \"$WAYLAND_DISPLAY\" > %4.part && mv %4.part %4'\n%5\n"_s
          .arg(xServer == XServer::yes ? u"enable"_s : u"disable"_s)
          .arg(screenSize.width())
          .arg(screenSize.height())
          .arg(names, configuration)
          .toUtf8());
  QProcessEnvironment environment = m_home.variables();
  environment.insert(u"WLR_BACKENDS"_s, u"headless"_s);
  environment.insert(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
  environment.insert(u"WLR_RENDERER"_s, u"pixman"_s);
  environment.insert(u"SWAYSOCK"_s, ipcSocket());
  m_sway.start({u"-c"_s, m_home.path(u"sway.conf"_s)}, environment);
  waitForSocketNames();
  m_input = std::make_unique<WaylandInput>(m_home.path(u"run/"_s + m_waylandDisplay), screenSize);
}

void SwaySession::waitForSocketNames() {
  const QString file = m_home.path(u"names"_s);
  const bool isUp = waitUntil([&] { return QFile::exists(file) || !m_sway.isRunning(); });
  const QStringList names =
      QString::fromUtf8(ProgramEnvironment::read(file).value_or(QByteArray())).split(u' ');
  if (!isUp || names.size() != 2) {
    throw HarnessError(u"sway did not come up: "_s + QString::fromUtf8(m_sway.errors()));
  }
  m_displayName = names[0];
  m_waylandDisplay = names[1];
}

QProcessEnvironment SwaySession::variables() const {
  QProcessEnvironment variables = m_home.variables();
  variables.insert(u"XDG_CURRENT_DESKTOP"_s, u"sway"_s);
  variables.insert(u"XDG_SESSION_TYPE"_s, u"wayland"_s);
  if (!m_displayName.isEmpty()) {
    variables.insert(u"DISPLAY"_s, m_displayName);
  }
  variables.insert(u"WAYLAND_DISPLAY"_s, m_waylandDisplay);
  variables.insert(u"SWAYSOCK"_s, ipcSocket());
  variables.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
  return variables;
}

void SwaySession::command(const QString &line) const {
  run(u"swaymsg"_s, {u"--"_s, line});
}

void SwaySession::click(QPoint position) const {
  command(u"seat - cursor set %1 %2"_s.arg(position.x()).arg(position.y()));
  command(u"seat - cursor press button1"_s);
  command(u"seat - cursor release button1"_s);
}

std::optional<QJsonObject> SwaySession::window(const QString &title) const {
  const QByteArray tree = run(u"swaymsg"_s, {u"--raw"_s, u"--type"_s, u"get_tree"_s});
  return findWindow(QJsonDocument::fromJson(tree).object(), title);
}

QImage SwaySession::picture() const {
  return QImage::fromData(run(u"grim"_s, {u"-t"_s, u"ppm"_s, u"-"_s}), "PPM");
}

void SwaySession::savePicture(const QString &path) const {
  // The same twice, because a window is drawn anew after sway has given it its size.
  QImage before;
  require(u"a picture that stays"_s, [&] {
    const QImage now = picture();
    return std::exchange(before, now) == now;
  });
  before.save(path);
}

QByteArray SwaySession::run(const QString &program, const QStringList &arguments) const {
  QProcess process;
  process.setProcessEnvironment(variables());
  process.start(program, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    throw HarnessError(
        u"%1 %2: %3"_s.arg(program, arguments.join(u' '), QString::fromUtf8(process.readAll())));
  }
  return process.readAllStandardOutput();
}

}  // namespace lanternix
