#include "demo/Demonstration.h"

#include "support/HarnessError.h"
#include "support/SampleGroups.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>
#include <QtCore/QTextStream>

#include <X11/keysym.h>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QByteArray greeting = "Hello from Lanternix\n";

void tell(const QString &sentence) {
  QTextStream(stdout) << sentence << Qt::endl;
}

}  // namespace

Demonstration::Demonstration() = default;

void Demonstration::play(const QString &pictureFile) {
  tell(u"Opened the virtual display %1 (%2 by %3 pixels) with a window manager and a session bus."_s
           .arg(m_session.displayName())
           .arg(m_session.screenSize().width())
           .arg(m_session.screenSize().height()));
  prepare();
  startProgram();
  toggle();
  openByLetters();
  savePicture(pictureFile);
}

void Demonstration::prepare() {
  const ProgramEnvironment &home = m_session.home();
  for (const QString &directory : {u"Documents"_s, u"Projects/website"_s}) {
    QDir().mkpath(home.path(directory));
  }
  ProgramEnvironment::write(home.path(u"Documents/plan.txt"_s), "A plan.\n");
  const QByteArray document =
      SampleGroups()
          .group(u"Work"_s, {.iconName = u"briefcase.fill"_s, .colorName = u"blue"_s})
          .directory(u"Website"_s, home.path(u"Projects/website"_s))
          .file(u"Plan"_s, home.path(u"Documents/plan.txt"_s))
          .link(u"Issue tracker"_s, u"https://tracker.example.org/issues"_s)
          .group(u"Commands"_s, {.iconName = u"terminal.fill"_s, .colorName = u"green"_s})
          .command(u"Greet"_s, u"echo 'Hello from Lanternix' > '%1'"_s.arg(greetingFile()))
          .command(u"Disk usage"_s, u"du -sh ~/Documents"_s)
          .json();
  ProgramEnvironment::write(home.dataFile(), document);
  tell(u"Wrote two groups of sample items into a temporary home directory."_s);
}

void Demonstration::startProgram() {
  m_program = std::make_unique<Program>(m_session);
  m_program->waitForPanel();
  tell(u"Started Lanternix: its panel came up by itself and has the keyboard."_s);
}

void Demonstration::toggle() {
  pressShortcut();
  require(u"the shortcut to hide the panel"_s, [this] { return !m_program->isPanelShown(); });
  tell(u"Pressed Super+Shift+Space: the panel is gone."_s);
  const auto other = m_session.openOtherWindow();
  tell(u"Opened another program's window, which took the keyboard."_s);
  pressShortcut();
  m_program->waitForPanel();
  tell(u"Pressed Super+Shift+Space there: the panel is back and has the keyboard."_s);
}

void Demonstration::openByLetters() {
  m_session.input().type(u"gre"_s);
  m_session.input().tap(XK_Return);
  require(u"the command's greeting"_s,
          [this] { return ProgramEnvironment::read(greetingFile()) == greeting; });
  require(u"the panel to hide after the launch"_s, [this] { return !m_program->isPanelShown(); });
  tell(u"Typed \"gre\" and Return: the command ran, its file says \"%1\", the panel is gone."_s.arg(
      QString::fromUtf8(greeting.trimmed())));
  if (!m_session.home().item(u"Greet"_s).contains("lastAccessed"_L1)) {
    throw HarnessError(u"the data file does not tell that the command was opened"_s);
  }
  tell(u"The data file tells when the command was opened."_s);
}

void Demonstration::savePicture(const QString &pictureFile) {
  pressShortcut();
  m_program->waitForPanel();
  const QImage picture = m_session.windows().grabSettled(m_program->panel());
  if (!picture.save(pictureFile, "PNG")) {
    throw HarnessError(u"the picture cannot be written to "_s + pictureFile);
  }
  tell(u"Showed the panel once more and saved its picture as %1."_s.arg(pictureFile));
}

void Demonstration::pressShortcut() {
  m_session.input().tap(XK_space, {XK_Super_L, XK_Shift_L});
}

QString Demonstration::greetingFile() const {
  return m_session.home().path(u"greeting"_s);
}

}  // namespace lanternix
