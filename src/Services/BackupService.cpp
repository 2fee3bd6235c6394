#include "Services/BackupService.h"

#include "Platform/Clock.h"
#include "Platform/FileManager.h"
#include "Platform/UserDefaults.h"
#include "Services/Preferences.h"

#include <QtCore/QLocale>
#include <QtCore/QLoggingCategory>

#include <algorithm>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(backup, "lanternix.backup", QtWarningMsg)

/// For a file whose age nobody knows: it counts as older than all others.
const Date unknownDate = Date::fromUnixMilliseconds(0);

bool isBackupName(const QString &name) {
  return name.startsWith("backup-"_L1) && name.endsWith(".json"_L1);
}

bool isSameDay(const Date &first, const Date &second) {
  const QDateTime firstTime = first.toDateTime();
  return firstTime.isValid() && firstTime.date() == second.toDateTime().date();
}

}  // namespace

BackupService::BackupService(FileManager &fileManager, UserDefaults &userDefaults, Clock &clock)
    : m_fileManager(fileManager), m_userDefaults(userDefaults), m_clock(clock) {}

void BackupService::performDailyBackupIfNeeded(const StorageService::Data &data,
                                               qint64 retentionDays) {
  using State = StoredValue<Date>::State;
  const StoredValue<Date> last = m_userDefaults.date(Preferences::lastBackupDate);
  if (last.state == State::present && isSameDay(last.value, m_clock.now())) {
    return;
  }
  createBackup(data, retentionDays);
  m_userDefaults.setDate(m_clock.now(), Preferences::lastBackupDate);
}

std::optional<BackupInfo> BackupService::createBackup(const StorageService::Data &data,
                                                      qint64 retentionDays) {
  const std::optional<QByteArray> bytes = data.encoded();
  if (!bytes) {
    qCWarning(backup) << "the data hold a date that is no number and cannot be backed up";
    return {};
  }
  const QString stamp = m_clock.now().toDateTime().toString(u"yyyy-MM-dd_HH-mm-ss"_s);
  const QString path = backupsDirectory() + u"/backup-"_s + stamp + u".json"_s;
  if (!m_fileManager.writeAtomically(*bytes, path)) {
    qCWarning(backup) << "the backup" << path << "cannot be written";
    return {};
  }
  pruneBackups(retentionDays);
  return BackupInfo{QUuid::createUuid(), m_clock.now(), path};
}

QList<BackupInfo> BackupService::listBackups() {
  const QString directory = backupsDirectory();
  const std::optional<QStringList> names = m_fileManager.contentsOfDirectory(directory);
  if (!names) {
    qCWarning(backup) << "the backups in" << directory << "cannot be listed";
    return {};
  }
  QList<BackupInfo> backups;
  for (const QString &name : *names) {
    if (isBackupName(name)) {
      const QString path = directory + u'/' + name;
      backups.append(
          {QUuid::createUuid(), m_fileManager.creationDate(path).value_or(unknownDate), path});
    }
  }
  std::stable_sort(
      backups.begin(), backups.end(),
      [](const BackupInfo &first, const BackupInfo &second) { return first.date > second.date; });
  return backups;
}

void BackupService::pruneBackups(qint64 count) {
  if (count < 0) {
    qFatal("A negative number of backups cannot be kept");
  }
  const QList<BackupInfo> backups = listBackups();
  for (qsizetype i = count; i < backups.size(); ++i) {
    deleteBackup(backups[i]);
  }
}

std::optional<StorageService::Data> BackupService::restore(const BackupInfo &info) const {
  const std::optional<QByteArray> bytes = m_fileManager.contents(info.url);
  if (!bytes) {
    qCWarning(backup) << "the backup" << info.url << "cannot be read";
    return {};
  }
  QString error;
  std::optional<StorageService::Data> data = DataDocument::decoded(*bytes, &error);
  if (!data) {
    qCWarning(backup) << "the backup" << info.url << "is not a data document:" << error;
  }
  return data;
}

void BackupService::deleteBackup(const BackupInfo &info) {
  if (!m_fileManager.removeItem(info.url)) {
    qCWarning(backup) << "the backup" << info.url << "cannot be removed";
  }
}

QString BackupService::backupsDirectory() {
  const QString support = m_fileManager.applicationSupportDirectory();
  if (support.isEmpty()) {
    qFatal("Lanternix has no place for its backups: the user has no home directory");
  }
  QString directory = support + u"/Lanternix/backups"_s;
  if (!m_fileManager.createDirectory(directory)) {
    qCWarning(backup) << "the directory" << directory << "cannot be created";
  }
  return directory;
}

}  // namespace lanternix
