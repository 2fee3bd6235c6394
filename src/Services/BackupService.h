#pragma once

#include "Services/BackupInfo.h"
#include "Services/StorageService.h"

#include <QtCore/QList>

#include <optional>

namespace lanternix {

class Clock;
class FileManager;
class UserDefaults;

/// Keeps dated copies of the data document in "Lanternix/backups" beside the data file: one a day
/// at start-up, more on request, pruned to the newest few. No operation reports an error: what
/// fails is logged and has the effect stated.
class BackupService {
 public:
  BackupService(FileManager &fileManager, UserDefaults &userDefaults, Clock &clock);

  /// Makes a backup unless one was attempted on this calendar day of the user's time zone. The
  /// attempt is remembered whether or not it succeeded.
  void performDailyBackupIfNeeded(const StorageService::Data &data, qint64 retentionDays);

  /// Writes \p data to "backup-yyyy-MM-dd_HH-mm-ss.json" (local time; a second backup within the
  /// same second replaces the first), then prunes to \p retentionDays files. None, and nothing
  /// pruned, when encoding or writing fails.
  std::optional<BackupInfo> createBackup(const StorageService::Data &data, qint64 retentionDays);

  /// The backups, newest first by the creation dates of their files; a file without one counts as
  /// made in 1970. Foreign files in the directory are passed over. Empty when listing fails.
  QList<BackupInfo> listBackups();

  /// Removes every backup but the newest \p count. Aborts the program when \p count is negative.
  void pruneBackups(qint64 count);

  /// The content of \p backup, or none when its file cannot be read or is not a data document.
  std::optional<StorageService::Data> restore(const BackupInfo &backup) const;

  /// Removes the file of \p backup; a file already gone is no error.
  void deleteBackup(const BackupInfo &backup);

 private:
  /// Path of the backup directory, which is created by every call that finds it missing.
  QString backupsDirectory();

  FileManager &m_fileManager;
  UserDefaults &m_userDefaults;
  Clock &m_clock;
};

}  // namespace lanternix
