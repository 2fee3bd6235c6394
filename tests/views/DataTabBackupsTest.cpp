#include "Utilities/DateText.h"
#include "views/DataSettingsTabTest.h"

#include <QtCore/QFileInfo>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class DataTabBackupsTest : public DataSettingsTabTest {};

/// Files that are larger than they are.
class SizedFileManager final : public PosixFileManager {
 public:
  std::optional<qint64> size = 5'000'000;
  std::optional<qint64> fileSize(const QString & /*path*/) const override { return size; }
};

}  // namespace

TEST_F(DataTabBackupsTest, SavedBackups_AreCountedAndListedNewestFirst) {
  show();
  ASSERT_EQ(backupFiles().size(), 1);  // that of the start-up
  const BackupInfo backup = state->backupService().listBackups().first();
  const QStringList all = texts(*tab);
  const qsizetype title = all.indexOf(u"Saved Backups (1)"_s);
  ASSERT_GE(title, 0);
  EXPECT_EQ(all[title + 1], DateText::mediumDateShortTime(backup.date));
  EXPECT_EQ(all[title + 2], backupFiles().first() + u" · "_s +
                                QLocale::system().formattedDataSize(QFileInfo(backup.url).size()));
}

TEST_F(DataTabBackupsTest, TheSize_IsWhatTheFileManagerTells) {
  SizedFileManager files;
  const QString name = backupFiles().first();
  state = std::make_unique<AppState>(
      Doors{files, userDefaults, hotkeyRegistrar, workspace, processLauncher, clock});
  show();
  EXPECT_TRUE(
      texts(*tab).contains(name + u" · "_s + QLocale::system().formattedDataSize(*files.size)));
  files.size.reset();
  show();
  EXPECT_TRUE(texts(*tab).contains(name)) << "without a size";
  tab.reset();
  state.reset();  // before its files
}

TEST_F(DataTabBackupsTest, CreateBackup_PutsTheNewOneOnTopAndSaysSo) {
  show();
  clock.advance(60);
  click(u"Create Backup"_s);
  EXPECT_EQ(backupFiles().size(), 2);
  const QStringList all = texts(*tab);
  const qsizetype title = all.indexOf(u"Saved Backups (2)"_s);
  ASSERT_GE(title, 0);
  EXPECT_TRUE(all[title + 2].startsWith(backupFiles().last()));
  EXPECT_EQ(alert(),
            (QStringList{u"Backup Created"_s, u"A backup snapshot has been saved."_s, u"[OK]"_s}));
  answer(Qt::Key_Return);
}

TEST_F(DataTabBackupsTest, CreateBackup_KeepsAsManyAsTheRetentionSays) {
  state->setBackupRetentionDays(2);
  writeBackups(4);
  show();
  click(u"Create Backup"_s);
  EXPECT_EQ(backupFiles().size(), 2);
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (2)"_s));
}

TEST_F(DataTabBackupsTest, AnUnreadableBackupsDirectory_ListsNothing) {
  QDir(home.backupDirectory()).removeRecursively();
  TemporaryHome::write(home.backupDirectory(), "a file where the directory should be");
  show();
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (0)"_s));
  click(u"Create Backup"_s);
  EXPECT_EQ(alert().first(), u"Backup Created"_s);
}

TEST_F(DataTabBackupsTest, ABackupMadeWhileTheTabIsHidden_IsThereWhenItIsShownAgain) {
  show();
  tab->hide();
  writeBackups(2);
  tab->show();
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (3)"_s));
}

TEST_F(DataTabBackupsTest, AYearOfBackups_IsListed) {
  state->setBackupRetentionDays(365);
  writeBackups(364);
  show();
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (365)"_s));
}

TEST_F(DataTabBackupsTest, Restore_AsksWithTheDateOfTheBackup) {
  show();
  const QString date =
      DateText::mediumDateShortTime(state->backupService().listBackups().first().date);
  click(u"Restore"_s);
  EXPECT_EQ(alert().mid(0, 2),
            (QStringList{u"Restore Backup?"_s,
                         u"This will replace your current data with the backup from %1. This "
                         "cannot be undone."_s.arg(date)}));
  EXPECT_TRUE(alert().contains(u"[Restore]"_s));
  EXPECT_TRUE(alert().contains(u"[Cancel]"_s));
}

TEST_F(DataTabBackupsTest, ReturnOnTheQuestion_RestoresNothing) {
  show();
  state->addGroup(group(u"Mine"_s));
  click(u"Restore"_s);
  answer(Qt::Key_Return);
  EXPECT_EQ(names(state->groups()), QStringList{u"Mine"_s});
}

TEST_F(DataTabBackupsTest, ConfirmingTheQuestion_RestoresSavesAndSaysNothing) {
  QDir(home.backupDirectory()).removeRecursively();
  const PathGroup group = this->group(u"Kept"_s);
  writeBackup(u"backup-1.json"_s, *DataDocument{{group}, {item(u"Thing"_s, group)}}.encoded());
  state->addGroup(this->group(u"Mine"_s));
  show();
  click(u"Restore"_s);
  QPointer<QDialog> dialog = dialogOver(*tab);
  activate(*dialog);
  press(*dialog, Qt::Key_Tab);
  answer(Qt::Key_Space);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(savedData()->groups, QList{group});
  EXPECT_EQ(alert(), QStringList());
  EXPECT_EQ(figure(u"Total Items"_s), u"1"_s);
}

TEST_F(DataTabBackupsTest, ABackupGoneOrBrokenWhileItsQuestionIsOpen_ChangesNothing) {
  QDir(home.backupDirectory()).removeRecursively();
  state->addGroup(group(u"Mine"_s));
  const QString path = home.backupDirectory() + u"/backup-1.json"_s;
  const auto gone = [&path] { QFile::remove(path); };
  const auto broken = [&path] { TemporaryHome::write(path, "{"); };
  for (const std::function<void()> &happens : {std::function<void()>(gone), {broken}}) {
    writeBackup(u"backup-1.json"_s, *DataDocument{}.encoded());
    show();
    click(u"Restore"_s);
    happens();
    button(*dialogOver(*tab), u"Restore"_s)->click();
    EXPECT_EQ(names(state->groups()), QStringList{u"Mine"_s});
    EXPECT_EQ(alert(), QStringList());
  }
}

TEST_F(DataTabBackupsTest, ALongForeignName_LeavesTheButtonInSight) {
  writeBackup(u"backup-%1.json"_s.arg(QString(200, u'x')), *DataDocument{}.encoded());
  show();
  const QAbstractButton *restore = button(*tab, u"Restore"_s);
  EXPECT_LT(restore->mapTo(tab.get(), restore->rect().topRight()).x(), tab->width());
}

}  // namespace lanternix
