#pragma once

#include "Models/Date.h"

#include <QtCore/QString>
#include <QtCore/QUuid>

namespace lanternix {

/// One backup file as it is listed.
struct BackupInfo {
  /// Fresh with every listing; stored nowhere.
  QUuid id;
  /// The moment the backup stands for: its file's creation date.
  Date date;
  /// Path of the file.
  QString url;

  friend bool operator==(const BackupInfo &, const BackupInfo &) = default;
};

}  // namespace lanternix
