#include "Platform/Linux/PosixFileManager.h"
#include "Platform/Linux/SettingsUserDefaults.h"
#include "Services/BackupService.h"
#include "Services/Preferences.h"
#include "support/FakeClock.h"
#include "support/HomelessFileManager.h"
#include "support/TemporaryHome.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>
#include <limits>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The real file system, except that the test says how old each file is.
class DatedFileManager final : public PosixFileManager {
 public:
  std::optional<Date> creationDate(const QString &path) const override {
    const QString name = QFileInfo(path).fileName();
    return dates.contains(name) ? dates.value(name) : PosixFileManager::creationDate(path);
  }

  QHash<QString, std::optional<Date>> dates;
};

class BackupServiceTest : public testing::Test {
 protected:
  QStringList namesInDirectory() const {
    return QDir(home.backupDirectory())
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
  }

  QStringList listedNames() {
    QStringList names;
    for (const BackupInfo &backup : service.listBackups()) {
      names.append(QFileInfo(backup.url).fileName());
    }
    return names;
  }

  QString backupPath(const QString &name) const { return home.backupDirectory() + u'/' + name; }

  /// A backup file that counts as made so many seconds after the beginning of 2001.
  void addBackup(const QString &name, std::optional<double> created) {
    ASSERT_TRUE(home.write(backupPath(name), *DataDocument().encoded()));
    fileManager.dates.insert(name, created ? std::optional(Date{*created}) : std::nullopt);
  }

  static DataDocument dataOf(const QString &groupName) {
    return {{{QUuid(), groupName, u"star"_s, u"red"_s, 0, true}}, {}};
  }

  TemporaryHome home;
  DatedFileManager fileManager;
  SettingsUserDefaults userDefaults{home.preferencesFile()};
  FakeClock clock{QDateTime(QDate(2026, 3, 7), QTime(9, 5, 41))};
  BackupService service{fileManager, userDefaults, clock};
};

TEST_F(BackupServiceTest, Create_NamesTheFileByLocalTimeAndGivesIt) {
  const auto backup = service.createBackup(dataOf(u"a"_s), 5);
  ASSERT_TRUE(backup);
  EXPECT_EQ(backup->url, backupPath(u"backup-2026-03-07_09-05-41.json"_s));
  EXPECT_EQ(backup->date, clock.now());
  EXPECT_FALSE(backup->id.isNull());
}

TEST_F(BackupServiceTest, Create_WritesTheBytesOfTheDataFile) {
  const auto backup = service.createBackup(dataOf(u"a"_s), 5);
  ASSERT_TRUE(backup);
  EXPECT_EQ(home.read(backup->url), dataOf(u"a"_s).encoded());
}

TEST_F(BackupServiceTest, Create_TwiceWithinOneSecond_LeavesTheLaterContent) {
  service.createBackup(dataOf(u"first"_s), 5);
  const auto second = service.createBackup(dataOf(u"second"_s), 5);
  ASSERT_TRUE(second);
  EXPECT_EQ(namesInDirectory().size(), 1);
  EXPECT_EQ(service.restore(*second), dataOf(u"second"_s));
}

TEST_F(BackupServiceTest, Create_BeyondTheRetention_LeavesTheNewest) {
  addBackup(u"backup-1.json"_s, 1);
  addBackup(u"backup-2.json"_s, 2);
  addBackup(u"backup-3.json"_s, 3);
  service.createBackup(dataOf(u"new"_s), 3);
  EXPECT_EQ(listedNames(), QStringList({u"backup-2026-03-07_09-05-41.json"_s, u"backup-3.json"_s,
                                        u"backup-2.json"_s}));
  EXPECT_EQ(namesInDirectory().size(), 3);
}

TEST_F(BackupServiceTest, Create_OfWhatCannotBeEncoded_IsNoneAndPrunesNothing) {
  addBackup(u"backup-1.json"_s, 1);
  addBackup(u"backup-2.json"_s, 2);
  DataDocument data;
  data.items.append(PathItem());
  data.items.first().dateAdded = Date{std::numeric_limits<double>::infinity()};
  EXPECT_EQ(service.createBackup(data, 1), std::nullopt);
  EXPECT_EQ(namesInDirectory().size(), 2);
}

TEST_F(BackupServiceTest, Create_ThatCannotBeWritten_IsNoneAndPrunesNothing) {
  addBackup(u"backup-1.json"_s, 1);
  addBackup(u"backup-2.json"_s, 2);
  ASSERT_TRUE(QDir().mkpath(backupPath(u"backup-2026-03-07_09-05-41.json"_s)));
  EXPECT_EQ(service.createBackup(DataDocument(), 1), std::nullopt);
  EXPECT_EQ(namesInDirectory().size(), 3);
}

TEST_F(BackupServiceTest, List_IsOrderedByCreationDateAndNotByName) {
  addBackup(u"backup-2026-01-01_00-00-00.json"_s, 30);
  addBackup(u"backup-2025-01-01_00-00-00.json"_s, 40);
  addBackup(u"backup-2027-01-01_00-00-00.json"_s, 10);
  EXPECT_EQ(listedNames(),
            QStringList({u"backup-2025-01-01_00-00-00.json"_s, u"backup-2026-01-01_00-00-00.json"_s,
                         u"backup-2027-01-01_00-00-00.json"_s}));
}

TEST_F(BackupServiceTest, List_OfRealFiles_HasTheOneWrittenLastFirst) {
  for (const QString &name : {u"backup-c.json"_s, u"backup-a.json"_s, u"backup-b.json"_s}) {
    ASSERT_TRUE(home.write(backupPath(name), "{}"));
    const auto created = fileManager.creationDate(backupPath(name));
    while (fileManager.creationDate(backupPath(name)) == created) {
      // The system's clock for files ticks every few milliseconds.
      QFile::remove(backupPath(name));
      ASSERT_TRUE(home.write(backupPath(name), "{}"));
    }
  }
  EXPECT_EQ(listedNames(),
            QStringList({u"backup-b.json"_s, u"backup-a.json"_s, u"backup-c.json"_s}));
}

TEST_F(BackupServiceTest, List_PassesOverForeignFiles) {
  for (const QString &name :
       {u"backup-notes.txt"_s, u"Backup-2026-01-01_00-00-00.json"_s, u".backup-1.json"_s,
        u"backup-1.JSON"_s, u"backup-1.json.AbCdEf"_s, u"backup.json"_s, u"backup-json"_s}) {
    ASSERT_TRUE(home.write(backupPath(name), "{}"));
  }
  EXPECT_EQ(listedNames(), QStringList());
  service.pruneBackups(0);
  EXPECT_EQ(namesInDirectory().size(), 7);
}

TEST_F(BackupServiceTest, List_DatesAFileOfUnknownAgeTo1970AndPutsItLast) {
  addBackup(u"backup-unknown.json"_s, std::nullopt);
  addBackup(u"backup-old.json"_s, -900'000'000);
  const QList<BackupInfo> backups = service.listBackups();
  ASSERT_EQ(backups.size(), 2);
  EXPECT_EQ(backups.last().date, Date{-978'307'200});
}

TEST_F(BackupServiceTest, List_GivesFreshIdentifiersEachTime) {
  addBackup(u"backup-1.json"_s, 1);
  EXPECT_NE(service.listBackups().first().id, service.listBackups().first().id);
}

TEST_F(BackupServiceTest, List_WithoutADirectory_CreatesItAndIsEmpty) {
  EXPECT_TRUE(service.listBackups().isEmpty());
  EXPECT_TRUE(QFileInfo(home.backupDirectory()).isDir());
}

TEST_F(BackupServiceTest, List_BelowAFile_IsEmpty) {
  ASSERT_TRUE(home.write(home.dataHome(), "a file where the directory should be"));
  EXPECT_TRUE(service.listBackups().isEmpty());
}

TEST_F(BackupServiceTest, Prune_ToFewer_RemovesTheOldest) {
  for (int i = 1; i <= 15; ++i) {
    addBackup(u"backup-%1.json"_s.arg(i), i);
  }
  service.pruneBackups(5);
  EXPECT_EQ(listedNames(),
            QStringList({u"backup-15.json"_s, u"backup-14.json"_s, u"backup-13.json"_s,
                         u"backup-12.json"_s, u"backup-11.json"_s}));
}

TEST_F(BackupServiceTest, Prune_ToAsManyOrMore_RemovesNothing) {
  addBackup(u"backup-1.json"_s, 1);
  addBackup(u"backup-2.json"_s, 2);
  service.pruneBackups(2);
  service.pruneBackups(std::numeric_limits<qint64>::max());
  EXPECT_EQ(namesInDirectory().size(), 2);
}

TEST_F(BackupServiceTest, Prune_OfAFileThatCannotBeRemoved_GoesOnWithTheNext) {
  addBackup(u"backup-3.json"_s, 3);
  ASSERT_TRUE(home.write(backupPath(u"backup-2.json/inside"_s), "x"));
  fileManager.dates.insert(u"backup-2.json"_s, Date{2});
  addBackup(u"backup-1.json"_s, 1);
  service.pruneBackups(1);
  EXPECT_EQ(namesInDirectory(), QStringList({u"backup-2.json"_s, u"backup-3.json"_s}));
}

TEST_F(BackupServiceTest, Restore_OfWhatIsMissingOrNoDocument_IsNone) {
  ASSERT_TRUE(home.write(backupPath(u"backup-1.json"_s), "{\"groups\":[]}"));
  EXPECT_EQ(service.restore({QUuid(), Date(), backupPath(u"backup-1.json"_s)}), std::nullopt);
  EXPECT_EQ(service.restore({QUuid(), Date(), backupPath(u"backup-2.json"_s)}), std::nullopt);
}

TEST_F(BackupServiceTest, Delete_RemovesTheFileAndNoOther) {
  addBackup(u"backup-1.json"_s, 1);
  addBackup(u"backup-2.json"_s, 2);
  service.deleteBackup(service.listBackups().first());
  EXPECT_EQ(namesInDirectory(), QStringList({u"backup-1.json"_s}));
}

TEST_F(BackupServiceTest, Daily_TwiceOnOneDay_MakesOneBackup) {
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  clock.set(QDateTime(QDate(2026, 3, 7), QTime(23, 59, 59)));
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  EXPECT_EQ(namesInDirectory().size(), 1);
}

TEST_F(BackupServiceTest, Daily_JustAfterMidnight_MakesAnotherBackup) {
  clock.set(QDateTime(QDate(2026, 3, 7), QTime(23, 59, 59)));
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  clock.advance(1);
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  EXPECT_EQ(namesInDirectory(), QStringList({u"backup-2026-03-07_23-59-59.json"_s,
                                             u"backup-2026-03-08_00-00-00.json"_s}));
}

TEST_F(BackupServiceTest, Daily_RemembersTheMomentOfTheAttempt) {
  service.performDailyBackupIfNeeded(DataDocument(), 5);
  EXPECT_EQ(userDefaults.date(Preferences::lastBackupDate).valueOr(Date()), clock.now());
}

TEST_F(BackupServiceTest, Daily_AfterADateOfAnotherDayOrOfNone_MakesABackup) {
  userDefaults.setDate(Date::fromDateTime(QDateTime(QDate(2027, 3, 7), QTime(9, 0))),
                       Preferences::lastBackupDate);
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  EXPECT_EQ(namesInDirectory().size(), 1);
  userDefaults.setString(u"yesterday"_s, Preferences::lastBackupDate);
  clock.advance(1);
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  EXPECT_EQ(namesInDirectory().size(), 2);
}

TEST_F(BackupServiceTest, Daily_ThatFails_IsNotTriedAgainThatDay) {
  ASSERT_TRUE(home.write(home.dataHome(), "a file where the directory should be"));
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  EXPECT_EQ(userDefaults.date(Preferences::lastBackupDate).valueOr(Date()), clock.now());
  ASSERT_TRUE(QFile::remove(home.dataHome()));
  service.performDailyBackupIfNeeded(dataOf(u"a"_s), 5);
  EXPECT_FALSE(QFileInfo::exists(home.backupDirectory()));
}

TEST_F(BackupServiceTest, Daily_OfNoData_BacksUpTheEmptyDocument) {
  service.performDailyBackupIfNeeded(DataDocument(), 5);
  EXPECT_EQ(home.read(backupPath(u"backup-2026-03-07_09-05-41.json"_s)), DataDocument().encoded());
}

TEST_F(BackupServiceTest, Manual_DoesNotCountAsTheDailyBackup) {
  service.createBackup(DataDocument(), 5);
  EXPECT_EQ(userDefaults.date(Preferences::lastBackupDate).state, StoredValue<Date>::State::absent);
}

using BackupServiceDeathTest = BackupServiceTest;

TEST_F(BackupServiceDeathTest, NegativeCount_StopsTheProgramEvenWithoutBackups) {
  EXPECT_DEATH(service.pruneBackups(-1), "negative number of backups");
}

TEST_F(BackupServiceDeathTest, WithoutAPlaceForBackups_TheProgramStops) {
  HomelessFileManager homeless;
  BackupService homelessService(homeless, userDefaults, clock);
  EXPECT_DEATH(homelessService.listBackups(), "no place for its backups");
}

}  // namespace
}  // namespace lanternix
