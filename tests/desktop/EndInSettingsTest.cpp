#include "desktop/SettingsFlowTest.h"

#include <QtCore/QDir>

#include <csignal>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The system ends the program while something is under way in its settings.
class EndInSettingsTest : public SettingsFlowTest {
 protected:
  void openWork() {
    openSettings(SampleGroups().group(u"Work"_s).link(u"Report"_s, u"https://example.org/1"_s));
  }
  bool endsWell() {
    ::kill(static_cast<pid_t>(program().processId()), SIGTERM);
    return waitUntil([this] { return program().exitCode() == 0; });
  }
  QStringList backups() {
    return QDir(backupDirectory()).entryList({u"backup-*.json"_s}, QDir::Files);
  }
  QString backupDirectory() { return session().home().path(u".local/share/Lanternix/backups"_s); }
};

TEST_F(EndInSettingsTest, SignalOverAnEditor_EndsTheProgramAndMakesNothing) {
  openWork();
  click(button(u"Add Group"_s));
  dialog(u"New Group"_s);
  input().type(u"Play"_s);
  program().settle();
  EXPECT_TRUE(endsWell());
  EXPECT_EQ(storedGroups(), QStringList(u"Work"_s));
}

TEST_F(EndInSettingsTest, SignalOverAQuestion_EndsTheProgramAndDeletesNothing) {
  openWork();
  select(u"Work"_s);
  input().tap(XK_Delete);
  dialog(u"Delete \"Work\"?"_s);
  EXPECT_TRUE(endsWell());
  EXPECT_EQ(storedItems(u"Work"_s), QStringList(u"Report"_s));
}

TEST_F(EndInSettingsTest, SignalWhileAShortcutIsRecorded_LeavesTheStoredOne) {
  openWork();
  showTab(u"Settings"_s);
  const auto recorder = control(u"push button"_s, u"Toggle Popup Panel"_s);
  const auto before = session().home().preference(u"globalShortcut"_s);
  click(recorder);
  require(u"the recorder to wait"_s,
          [&] { return reader.description(recorder) == u"Press shortcut..."_s; });
  EXPECT_TRUE(endsWell());
  EXPECT_EQ(session().home().preference(u"globalShortcut"_s), before);
}

TEST_F(EndInSettingsTest, SignalWhileANumberIsTyped_RemovesNoBackups) {
  for (const QString &day : {u"01"_s, u"02"_s, u"03"_s}) {
    ProgramEnvironment::write(backupDirectory() + u"/backup-2020-01-%1_10-00-00.json"_s.arg(day),
                              "{}");
  }
  openWork();
  const QStringList before = backups();
  ASSERT_GE(before.size(), 3);
  showTab(u"Data"_s);
  tabTo(control(u"spin box"_s, u"Backup Retention"_s));
  input().tap(XK_a, {XK_Control_L});
  input().type(u"1"_s);
  program().settle();
  EXPECT_TRUE(endsWell());
  EXPECT_EQ(backups(), before);
}

}  // namespace
}  // namespace lanternix
