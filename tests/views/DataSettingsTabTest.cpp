#include "Utilities/DateText.h"
#include "Views/Controls/Stepper.h"
#include "Views/Settings/DataSettingsTab.h"
#include "views/FormTest.h"

#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class DataSettingsTabTest : public FormTest {
 protected:
  std::unique_ptr<AppState> state = makeState();
  std::unique_ptr<DataSettingsTab> tab;

  /// Shows the tab over the store as it is.
  void show() {
    tab = std::make_unique<DataSettingsTab>(*state, nullptr, fileChooser);
    tab->resize(600, 480);
    present(*tab);
  }

  void writeBackup(const QString &name, const QByteArray &bytes) {
    ASSERT_TRUE(TemporaryHome::write(home.backupDirectory() + u'/' + name, bytes));
  }
  void writeBackups(int count) {
    for (int i = 0; i < count; ++i) {
      writeBackup(u"backup-%1.json"_s.arg(i, 4, 10, QLatin1Char('0')), *DataDocument{}.encoded());
    }
  }
  QStringList backupFiles() const { return QDir(home.backupDirectory()).entryList(QDir::Files); }

  Stepper *stepper() const { return named<Stepper>(*tab, u"Backup Retention"_s); }
  void click(const QString &text) const { button(*tab, text)->click(); }

  /// What the alert over the tab says, in order, and what can be answered; empty without one.
  QStringList alert() const {
    const QDialog *dialog = dialogOver(*tab);
    if (dialog == nullptr) {
      return {};
    }
    QStringList result = texts(*dialog);
    for (const QPushButton *answer : dialog->findChildren<QPushButton *>()) {
      result.append(u'[' + answer->text() + u']');
    }
    return result;
  }

  void answer(Qt::Key key) {
    QPointer<QDialog> dialog = dialogOver(*tab);
    activate(*dialog);
    press(*dialog, key);
    ASSERT_TRUE(waitUntil([&dialog] { return dialog.isNull(); }));
  }

  /// The value beside the title of a row.
  QString figure(const QString &title) const {
    const QStringList all = texts(*tab);
    return all.value(all.lastIndexOf(title) + 1);
  }

  PathItem typed(ItemType type, const PathGroup &group) {
    PathItem result = item(u"Item"_s, group);
    result.type = type;
    return result;
  }
};

const QStringList exported{u"Export Successful"_s, u"[OK]"_s};
const QStringList imported{u"Import Successful"_s, u"Your data has been restored successfully."_s,
                           u"[OK]"_s};

}  // namespace

// --- Layout -------------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, TheTab_HasItsSectionsAndRowsInOrder) {
  QDir(home.backupDirectory()).removeRecursively();
  show();
  EXPECT_EQ(texts(*tab), (QStringList{u"Export / Import"_s,
                                      u"Export Data"_s,
                                      u"Save your groups and items as a JSON backup file"_s,
                                      u"Import Data"_s,
                                      u"Restore groups and items from a JSON backup file"_s,
                                      u"Automatic Backups"_s,
                                      u"Backup Retention"_s,
                                      u"Number of daily backups to keep"_s,
                                      u"Create Backup Now"_s,
                                      u"Manually save a snapshot of current data"_s,
                                      u"Saved Backups (0)"_s,
                                      u"Statistics"_s,
                                      u"Groups"_s,
                                      u"0"_s,
                                      u"Total Items"_s,
                                      u"0"_s,
                                      u"Directories"_s,
                                      u"0"_s,
                                      u"Files"_s,
                                      u"0"_s,
                                      u"Links"_s,
                                      u"0"_s}));
  for (const QString &text : {u"Export..."_s, u"Import..."_s, u"Create Backup"_s}) {
    EXPECT_NE(button(*tab, text), nullptr);
  }
}

// --- Export -------------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, Export_ProposesANameAndJsonFiles) {
  show();
  click(u"Export..."_s);
  ASSERT_EQ(fileChooser.requests.size(), 1);
  const FileChooser::Request &request = fileChooser.requests.first();
  EXPECT_EQ(request.kind, FileChooser::Kind::fileToReplace);
  EXPECT_EQ(QFileInfo(request.start).fileName(), u"Lanternix-Backup.json"_s);
  EXPECT_TRUE(QFileInfo(request.start).dir().exists());
  EXPECT_EQ(request.nameFilters, QStringList{u"JSON Files (*.json)"_s});
}

TEST_F(DataSettingsTabTest, Export_WritesTheDocumentUnderTheVeryNameChosen) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {item(u"Thing"_s, group)});
  show();
  fileChooser.answer = home.root() + u"/my export"_s;
  click(u"Export..."_s);
  EXPECT_EQ(TemporaryHome::read(*fileChooser.answer), state->exportData());
  EXPECT_EQ(alert(), exported);
  answer(Qt::Key_Return);
}

TEST_F(DataSettingsTabTest, Export_ReplacesAFile) {
  show();
  fileChooser.answer = home.root() + u"/old.json"_s;
  TemporaryHome::write(*fileChooser.answer, QByteArray(5000, 'x'));
  click(u"Export..."_s);
  EXPECT_EQ(TemporaryHome::read(*fileChooser.answer), state->exportData());
}

TEST_F(DataSettingsTabTest, ACancelledExport_SaysNothing) {
  show();
  click(u"Export..."_s);
  EXPECT_EQ(alert(), QStringList());
}

TEST_F(DataSettingsTabTest, AnExportThatCannotBeWritten_SaysItIsDoneAllTheSame) {
  show();
  fileChooser.answer = home.root() + u"/missing/place.json"_s;
  click(u"Export..."_s);
  EXPECT_FALSE(QFile::exists(*fileChooser.answer));
  EXPECT_EQ(alert(), exported);
}

TEST_F(DataSettingsTabTest, AnExportOntoAFullDevice_HarmsNothing) {
  show();
  fileChooser.answer = u"/dev/full"_s;
  click(u"Export..."_s);
  EXPECT_EQ(alert(), exported);
}

TEST_F(DataSettingsTabTest, DataThatCannotBeEncoded_AreNotExported) {
  const PathGroup group = this->group(u"Work"_s);
  show();
  PathItem endless = item(u"Thing"_s, group);
  endless.dateAdded = Date{qInf()};
  state->addItem(endless);
  click(u"Export..."_s);
  EXPECT_TRUE(fileChooser.requests.isEmpty());
  EXPECT_EQ(alert(), QStringList());
}

// --- Import -------------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, Import_AsksForOneJsonFile) {
  show();
  click(u"Import..."_s);
  ASSERT_EQ(fileChooser.requests.size(), 1);
  EXPECT_EQ(fileChooser.requests.first().kind, FileChooser::Kind::file);
  EXPECT_EQ(fileChooser.requests.first().nameFilters, QStringList{u"JSON Files (*.json)"_s});
  EXPECT_EQ(alert(), QStringList());
}

TEST_F(DataSettingsTabTest, AnExportImportedElsewhere_BringsEverythingBack) {
  const PathGroup group = foldedGroup(u"Work"_s, 4);
  const PathItem first = opened(item(u"First"_s, group, 2), 1234.5);
  PathItem stray = item(u"Stray"_s, group, 9);
  stray.groupId = QUuid::createUuid();
  state = makeState({group}, {first, stray});
  const QList<PathItem> items = state->items();
  show();
  fileChooser.answer = home.root() + u"/export.json"_s;
  click(u"Export..."_s);
  answer(Qt::Key_Return);
  state->deleteGroup(group.id);
  state->deleteItem(stray.id);
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(state->items(), items);
  EXPECT_EQ(savedData(), (DataDocument{{group}, items}));
  EXPECT_EQ(alert(), imported);
  answer(Qt::Key_Escape);
}

TEST_F(DataSettingsTabTest, AnImportWithoutItems_ChangesNothingYetSaysItIsDone) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  show();
  fileChooser.answer = home.root() + u"/half.json"_s;
  TemporaryHome::write(*fileChooser.answer, R"({"groups": []})");
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), imported);
}

TEST_F(DataSettingsTabTest, AnImportThatCannotBeRead_SaysNothing) {
  show();
  for (const QString &path : {home.root() + u"/missing.json"_s, home.root()}) {
    fileChooser.answer = path;
    click(u"Import..."_s);
    EXPECT_EQ(alert(), QStringList());
  }
}

TEST_F(DataSettingsTabTest, AHundredMegabytesOfRubbish_ChangeNothing) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  show();
  fileChooser.answer = home.root() + u"/rubbish.json"_s;
  TemporaryHome::write(*fileChooser.answer, QByteArray(100'000'000, '['));
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), imported);
}

TEST_F(DataSettingsTabTest, AFileTooLargeForADocument_ChangesNothingAndIsNotRead) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {});
  show();
  fileChooser.answer = home.root() + u"/huge.json"_s;
  // A document, had the blanks behind it been read.
  TemporaryHome::write(*fileChooser.answer, *DataDocument{}.encoded());
  ASSERT_TRUE(QFile::resize(*fileChooser.answer, DataSettingsTab::largestImport + 1));
  click(u"Import..."_s);
  EXPECT_EQ(state->groups(), QList{group});
  EXPECT_EQ(alert(), imported);
}

// --- Backups ------------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, SavedBackups_AreCountedAndListedNewestFirst) {
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

TEST_F(DataSettingsTabTest, CreateBackup_PutsTheNewOneOnTopAndSaysSo) {
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

TEST_F(DataSettingsTabTest, CreateBackup_KeepsAsManyAsTheRetentionSays) {
  state->setBackupRetentionDays(2);
  writeBackups(4);
  show();
  click(u"Create Backup"_s);
  EXPECT_EQ(backupFiles().size(), 2);
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (2)"_s));
}

TEST_F(DataSettingsTabTest, AnUnreadableBackupsDirectory_ListsNothing) {
  QDir(home.backupDirectory()).removeRecursively();
  TemporaryHome::write(home.backupDirectory(), "a file where the directory should be");
  show();
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (0)"_s));
  click(u"Create Backup"_s);
  EXPECT_EQ(alert().first(), u"Backup Created"_s);
}

TEST_F(DataSettingsTabTest, ABackupMadeWhileTheTabIsHidden_IsThereWhenItIsShownAgain) {
  show();
  tab->hide();
  writeBackups(2);
  tab->show();
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (3)"_s));
}

TEST_F(DataSettingsTabTest, AYearOfBackups_IsListed) {
  state->setBackupRetentionDays(365);
  writeBackups(364);
  show();
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (365)"_s));
}

// --- Retention ----------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, TheRetention_CountsInDays) {
  state->setBackupRetentionDays(2);
  show();
  EXPECT_EQ(stepper()->text(), u"2 days"_s);
  stepper()->stepDown();
  EXPECT_EQ(stepper()->text(), u"1 day"_s);
  EXPECT_EQ(state->backupRetentionDays(), 1);
}

TEST_F(DataSettingsTabTest, TheRetention_StopsAt1AndAt365) {
  state->setBackupRetentionDays(1);
  show();
  stepper()->stepDown();
  EXPECT_EQ(state->backupRetentionDays(), 1);
  state->setBackupRetentionDays(364);
  stepper()->stepUp();
  stepper()->stepUp();
  EXPECT_EQ(state->backupRetentionDays(), 365);
}

TEST_F(DataSettingsTabTest, LoweringTheRetention_RemovesTheOldestBackupsAtOnce) {
  writeBackups(4);
  state->setBackupRetentionDays(5);
  show();
  stepper()->stepDown();
  EXPECT_EQ(backupFiles().size(), 4);
  EXPECT_TRUE(texts(*tab).contains(u"Saved Backups (4)"_s));
}

TEST_F(DataSettingsTabTest, TypingANumber_AppliesItWhenItIsFinished) {
  writeBackups(4);
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"30"_s);
  EXPECT_EQ(state->backupRetentionDays(), 15);
  EXPECT_EQ(backupFiles().size(), 5);  // and not three, on the way to thirty
  press(*tab, Qt::Key_Return);
  EXPECT_EQ(state->backupRetentionDays(), 30);
  EXPECT_EQ(stepper()->text(), u"30 days"_s);
  EXPECT_EQ(backupFiles().size(), 5);
}

TEST_F(DataSettingsTabTest, TypingATooLargeNumber_IsNotTaken) {
  show();
  stepper()->setFocus();
  stepper()->selectAll();
  type(*tab, u"400"_s);
  press(*tab, Qt::Key_Return);
  EXPECT_EQ(state->backupRetentionDays(), 40);
}

TEST_F(DataSettingsTabTest, TypingNothingOrZero_LeavesTheRetention) {
  show();
  for (const QString &text : {u" "_s, u"0"_s}) {
    stepper()->setFocus();
    stepper()->selectAll();
    type(*tab, text);
    press(*tab, Qt::Key_Return);
    EXPECT_EQ(state->backupRetentionDays(), 15);
    EXPECT_EQ(stepper()->text(), u"15 days"_s);
  }
}

TEST_F(DataSettingsTabTest, TheWheelOverTheStepper_RemovesNoBackups) {
  show();
  stepper()->setFocus();
  QWheelEvent turn(QPointF(5, 5), stepper()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(stepper(), &turn);
  EXPECT_EQ(state->backupRetentionDays(), 15);
}

TEST_F(DataSettingsTabTest, AStoredRetentionBeyondTheRange_StaysUntilItIsChanged) {
  state->setBackupRetentionDays(1000);
  show();
  EXPECT_EQ(stepper()->text(), u"365 days"_s);
  EXPECT_EQ(state->backupRetentionDays(), 1000);
}

// --- Restoring ----------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, Restore_AsksWithTheDateOfTheBackup) {
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

TEST_F(DataSettingsTabTest, ReturnOnTheQuestion_RestoresNothing) {
  show();
  state->addGroup(group(u"Mine"_s));
  click(u"Restore"_s);
  answer(Qt::Key_Return);
  EXPECT_EQ(names(state->groups()), QStringList{u"Mine"_s});
}

TEST_F(DataSettingsTabTest, ConfirmingTheQuestion_RestoresSavesAndSaysNothing) {
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

TEST_F(DataSettingsTabTest, ABackupGoneOrBrokenWhileItsQuestionIsOpen_ChangesNothing) {
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

TEST_F(DataSettingsTabTest, ALongForeignName_LeavesTheButtonInSight) {
  writeBackup(u"backup-%1.json"_s.arg(QString(200, u'x')), *DataDocument{}.encoded());
  show();
  const QAbstractButton *restore = button(*tab, u"Restore"_s);
  EXPECT_LT(restore->mapTo(tab.get(), restore->rect().topRight()).x(), tab->width());
}

// --- Statistics ---------------------------------------------------------------------------------

TEST_F(DataSettingsTabTest, Statistics_FollowTheStore) {
  const PathGroup group = this->group(u"Work"_s);
  show();
  state->addGroup(group);
  for (const ItemType type : {ItemType::directory, ItemType::file, ItemType::file, ItemType::link,
                              ItemType::link, ItemType::link}) {
    state->addItem(typed(type, group));
  }
  EXPECT_EQ(figure(u"Groups"_s), u"1"_s);
  EXPECT_EQ(figure(u"Total Items"_s), u"6"_s);
  EXPECT_EQ(figure(u"Directories"_s), u"1"_s);
  EXPECT_EQ(figure(u"Files"_s), u"2"_s);
  EXPECT_EQ(figure(u"Links"_s), u"3"_s);
}

TEST_F(DataSettingsTabTest, Commands_CountInTheTotalOnly) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {typed(ItemType::command, group)});
  show();
  EXPECT_EQ(figure(u"Total Items"_s), u"1"_s);
  for (const QString &title : {u"Directories"_s, u"Files"_s, u"Links"_s}) {
    EXPECT_EQ(figure(title), u"0"_s);
  }
}

}  // namespace lanternix
