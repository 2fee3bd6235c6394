#include "desktop/SettingsFlowTest.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using State = AccessibilityBus::State;

/// How data are backed up, brought back, and carried to another machine.
class DataFlowTest : public SettingsFlowTest {
 protected:
  void openData() {
    openSettings(SampleGroups().group(u"Work"_s).link(u"Report"_s, u"https://example.org/1"_s));
    showTab(u"Data"_s);
  }

  QStringList backups() {
    return QDir(session().home().path(u".local/share/Lanternix/backups"_s))
        .entryList({u"backup-*.json"_s}, QDir::Files);
  }
  /// Presses \p name and waits for the dialog that it opens.
  AccessibilityBus::Node press(const QString &name, const QString &title) {
    const auto control = button(name);
    tabTo(control);
    click(control);
    return dialog(title);
  }
  /// Writes \p path into the file dialog that has the keyboard, in place of what is there.
  void answer(const QString &path) {
    input().tap(XK_a, {XK_Control_L});
    input().type(path);
    input().tap(XK_Return);
  }
  void leaveByReturn(const QString &title) {
    const auto message = dialog(title);
    input().tap(XK_Return);
    requireClosed(message);
  }
  /// Deletes the group that the data consist of.
  void deleteEverything() {
    showTab(u"Groups"_s);
    select(u"Work"_s);
    input().tap(XK_Delete);
    const auto question = dialog(u"Delete \"Work\"?"_s);
    tabTo(reader.find(question, u"push button"_s, u"Delete Group"_s));
    input().tap(XK_space);
    requireClosed(question);
    require(u"the group to be gone"_s, [&] { return storedGroups().isEmpty(); });
    showTab(u"Data"_s);
  }
};

TEST_F(DataFlowTest, APressBesideAMessage_LeavesTheMessageTheKeyboard) {
  openData();
  press(u"Create Backup"_s, u"Backup Created"_s);
  const QRect place = session().windows().geometry(settings());
  input().click(place.bottomLeft() + QPoint(20, -20));
  program().settle();
  leaveByReturn(u"Backup Created"_s);
}

TEST_F(DataFlowTest, CreateBackup_WritesAFileAndSaysSo) {
  openData();
  const QStringList before = backups();
  for (const QString &name : before) {  // made in this very second it would be the same file
    ASSERT_TRUE(QFile::remove(session().home().path(u".local/share/Lanternix/backups/"_s + name)));
  }
  const auto message = press(u"Create Backup"_s, u"Backup Created"_s);
  EXPECT_EQ(reader.description(message), u"A backup snapshot has been saved."_s);
  input().tap(XK_Return);
  requireClosed(message);
  ASSERT_EQ(backups().size(), 1);
  const auto bytes = ProgramEnvironment::read(
      session().home().path(u".local/share/Lanternix/backups/"_s + backups().front()));
  EXPECT_EQ(QJsonDocument::fromJson(bytes.value()).object(), session().home().data());
}

TEST_F(DataFlowTest, Restore_BringsTheBackupsDataBack) {
  openData();
  const QJsonObject old = session().home().data();
  press(u"Create Backup"_s, u"Backup Created"_s);
  leaveByReturn(u"Backup Created"_s);
  deleteEverything();
  const auto question = press(u"Restore"_s, u"Restore Backup?"_s);
  tabTo(reader.find(question, u"push button"_s, u"Restore"_s));
  input().tap(XK_space);
  requireClosed(question);
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Report"_s}));
  EXPECT_EQ(session().home().data()["groups"_L1], old["groups"_L1]);
  EXPECT_EQ(session().home().data()["items"_L1], old["items"_L1]);
}

TEST_F(DataFlowTest, RestoreLeftByEscape_ChangesNothing) {
  openData();
  deleteEverything();
  const auto question = press(u"Restore"_s, u"Restore Backup?"_s);
  input().tap(XK_Escape);
  requireClosed(question);
  program().settle();
  EXPECT_EQ(storedGroups(), QStringList());
}

TEST_F(DataFlowTest, ABackupThatGoesWhileItsQuestionIsOpen_LeavesTheDataAlone) {
  openData();
  const auto question = press(u"Restore"_s, u"Restore Backup?"_s);
  ASSERT_TRUE(QDir(session().home().path(u".local/share/Lanternix/backups"_s)).removeRecursively());
  tabTo(reader.find(question, u"push button"_s, u"Restore"_s));
  input().tap(XK_space);
  requireClosed(question);
  program().settle();
  EXPECT_EQ(storedItems(u"Work"_s), QStringList(u"Report"_s));
  EXPECT_TRUE(program().isRunning());
}

TEST_F(DataFlowTest, ARetentionThatIsTyped_IsStored) {
  openData();
  const auto field = control(u"spin box"_s, u"Backup Retention"_s);
  tabTo(field);
  input().tap(XK_a, {XK_Control_L});
  input().type(u"12"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(
      waitUntil([&] { return session().home().preference(u"backupRetentionDays"_s) == u"12"_s; }));
}

TEST_F(DataFlowTest, Export_WritesTheDataToTheChosenFile) {
  openData();
  const QString file = session().home().path(u"carried.json"_s);
  press(u"Export..."_s, u"Export Data"_s);
  answer(file);
  leaveByReturn(u"Export Successful"_s);
  const QJsonObject data = session().home().data();
  EXPECT_EQ(storedItems(u"Work"_s), QStringList(u"Report"_s));
  EXPECT_EQ(QJsonDocument::fromJson(ProgramEnvironment::read(file).value()).object(), data);
}

TEST_F(DataFlowTest, Import_BringsTheExportedDataBack) {
  openData();
  const QString file = session().home().path(u"carried.json"_s);
  press(u"Export..."_s, u"Export Data"_s);
  answer(file);
  leaveByReturn(u"Export Successful"_s);
  deleteEverything();
  press(u"Import..."_s, u"Import Data"_s);
  answer(file);
  const auto message = dialog(u"Import Successful"_s);
  EXPECT_EQ(reader.description(message), u"Your data has been restored successfully."_s);
  input().tap(XK_Return);
  requireClosed(message);
  EXPECT_TRUE(becomesStored(u"Work"_s, {u"Report"_s}));
}

TEST_F(DataFlowTest, AnImportOfAHundredMegabytesOfRubbish_LeavesTheDataAlone) {
  openData();
  const QString file = session().home().path(u"rubbish.json"_s);
  // What is wrong with it comes last.
  constexpr qsizetype pairs = 50'000'000;
  ProgramEnvironment::write(file, R"({"rubbish":[)" + QByteArray("1,").repeated(pairs));
  press(u"Import..."_s, u"Import Data"_s);
  answer(file);
  leaveByReturn(u"Import Successful"_s);
  EXPECT_EQ(storedItems(u"Work"_s), QStringList(u"Report"_s));
  EXPECT_TRUE(program().isRunning());
}

TEST_F(DataFlowTest, AnExportToAReadOnlyPlace_SaysItIsDoneAllTheSame) {
  openData();
  const QByteArray data = *ProgramEnvironment::read(session().home().dataFile());
  press(u"Export..."_s, u"Export Data"_s);
  answer(u"/sys/carried.json"_s);  // where not even the system's administrator makes files
  leaveByReturn(u"Export Successful"_s);
  EXPECT_FALSE(QFile::exists(u"/sys/carried.json"_s));
  EXPECT_EQ(ProgramEnvironment::read(session().home().dataFile()), data);
  EXPECT_TRUE(program().isRunning());
}

TEST_F(DataFlowTest, AnExportLeftByEscape_WritesNothing) {
  openData();
  const auto chooser = press(u"Export..."_s, u"Export Data"_s);
  input().tap(XK_Escape);
  requireClosed(chooser);
  EXPECT_EQ(QDir(session().home().home()).entryList({u"*.json"_s}, QDir::Files), QStringList());
}

TEST_F(DataFlowTest, LaunchAtLogin_WritesAndRemovesTheEntry) {
  openSettings();
  showTab(u"Settings"_s);
  const QString entry =
      session().home().path(u".config/autostart/org.lanternix.Lanternix.desktop"_s);
  const auto toggle = control(u"check box"_s, u"Launch Lanternix at Login"_s);
  ASSERT_FALSE(reader.has(toggle, State::checked));
  tabTo(toggle);
  click(toggle);
  EXPECT_TRUE(waitUntil([&] { return QFile::exists(entry); }));
  EXPECT_TRUE(waitUntil([&] { return reader.has(toggle, State::checked); }));
  EXPECT_TRUE(ProgramEnvironment::read(entry).value_or(QByteArray()).contains("\nExec="));
  click(toggle);
  EXPECT_TRUE(waitUntil([&] { return !QFile::exists(entry); }));
  EXPECT_TRUE(waitUntil([&] { return !reader.has(toggle, State::checked); }));
}

}  // namespace
}  // namespace lanternix
