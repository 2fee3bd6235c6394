#pragma once

#include "Platform/FileManager.h"

namespace lanternix {

/// The file system through the system's own calls, and the user's data directory among
/// freedesktop.org's base directories.
class PosixFileManager : public FileManager {
 public:
  /// A greater file is not read at all: no document comes near, and memory is the user's.
  static constexpr qint64 largestFile = qint64{1} << 30;

  QString applicationSupportDirectory() const override;
  bool createDirectory(const QString &path) override;
  /// Regular files only, through links too: a pipe would keep the program waiting.
  std::optional<QByteArray> contents(const QString &path) const override;
  bool writeAtomically(QByteArrayView bytes, const QString &path) override;
  bool write(QByteArrayView bytes, const QString &path) override;
  std::optional<QStringList> contentsOfDirectory(const QString &path) const override;
  std::optional<Date> creationDate(const QString &path) const override;
  std::optional<qint64> fileSize(const QString &path) const override;
  bool removeItem(const QString &path) override;
};

}  // namespace lanternix
