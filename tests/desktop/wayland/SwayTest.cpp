#include "desktop/wayland/SwayTest.h"

#include "support/AccessibilityBus.h"
#include "support/ProgramPing.h"
#include "support/SampleGroups.h"
#include "support/WindowProbe.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>

namespace lanternix {

using namespace Qt::StringLiterals;

void SwayTest::startSession(const QString &configuration, SwaySession::XServer xServer) {
  session = std::make_unique<SwaySession>(configuration, xServer);
}

QProcessEnvironment &SwayTest::variables() {
  if (!m_variables) {
    m_variables = session->variables();
  }
  return *m_variables;
}

void SwayTest::launch() {
  if (!session) {
    startSession();
  }
  SampleGroups groups;
  groups.group(u"Commands"_s);
  for (const QString &name : {u"build"_s, u"deploy"_s, u"report"_s}) {
    groups.command(name, session->home().marking(name));
  }
  groups.command(u"surroundings"_s, u"env > '%1.part'; mv '%1.part' '%1'"_s.arg(environmentFile()));
  ProgramEnvironment::write(session->home().dataFile(), groups.json());
  program = std::make_unique<ChildProcess>(QStringLiteral(LANTERNIX_PROGRAM), u"lanternix"_s);
  program->start({}, variables());
}

void SwayTest::startProgram() {
  launch();
  require(u"the panel with the keyboard"_s, [this] { return hasKeyboard(); });
}

void SwayTest::startHidden() {
  startProgram();
  input().tap(KEY_ESC);
  require(u"the panel to hide"_s, [this] { return !isShown(); });
}

bool SwayTest::hasKeyboard() const {
  const auto window = panel();
  return window && (*window)["focused"_L1].toBool();
}

QRect SwayTest::panelGeometry() const {
  const QJsonObject rect = panel().value()["rect"_L1].toObject();
  return {rect["x"_L1].toInt(), rect["y"_L1].toInt(), rect["width"_L1].toInt(),
          rect["height"_L1].toInt()};
}

bool SwayTest::becomesShown() const {
  return waitUntil([this] { return hasKeyboard(); });
}

bool SwayTest::becomesHidden() const {
  return waitUntil([this] { return !isShown(); });
}

bool SwayTest::staysShown() const {
  return !waitUntil([this] { return !isShown(); }, std::chrono::milliseconds(500));
}

void SwayTest::settle() const {
  const auto window = WindowProbe(session->displayName()).find(u"lanternix"_s, u"Lanternix"_s);
  ProgramPing(session->displayName(), window.value()).waitForAnswer();
}

void SwayTest::recordShortcut(AccessibilityBus &reader, const std::function<void()> &press,
                              const QString &expected) {
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  const auto window =
      reader.find(reader.program(u"Lanternix"_s), u"frame"_s, u"Lanternix Settings"_s);
  require(u"the settings with the keyboard"_s,
          [&] { return reader.has(window, AccessibilityBus::State::active); });
  reader.act(reader.find(window, u"page tab"_s, u"Settings"_s));
  const auto recorder = reader.find(window, u"push button"_s, u"Toggle Popup Panel"_s);
  const auto shows = [&](const QString &text) { return reader.description(recorder) == text; };
  reader.act(recorder);
  require(u"the recorder to wait"_s, [&] { return shows(u"Press shortcut..."_s); });
  press();
  require(u"the recorder to show "_s + expected, [&] { return shows(expected); });
}

QString SwayTest::run(QStringList commandLine) {
  QProcess process;
  process.setProcessEnvironment(variables());
  process.start(commandLine.takeFirst(), commandLine);
  process.waitForFinished();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void SwayTest::savePicture(const QString &name) const {
  const QString directory = qEnvironmentVariable("LANTERNIX_PICTURES");
  if (!directory.isEmpty()) {
    QDir().mkpath(directory);
    session->savePicture(directory + u'/' + name + u".png"_s);
  }
}

}  // namespace lanternix
