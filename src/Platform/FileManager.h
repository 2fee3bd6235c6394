#pragma once

#include "Models/Date.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace lanternix {

/// Files and directories. Every operation is synchronous; none throws.
class FileManager {
 public:
  virtual ~FileManager() = default;

  /// The directory in which programs keep the user's data, or empty when the system names none.
  virtual QString applicationSupportDirectory() const = 0;

  /// Creates \p path with all its parents. True when the directory is there afterwards.
  virtual bool createDirectory(const QString &path) = 0;

  /// The whole file, or none when it cannot be read: also when it is no regular file, or so large
  /// that it would take the user's memory. There is no other limit to data, backups and imports.
  virtual std::optional<QByteArray> contents(const QString &path) const = 0;

  /// Replaces the file at \p path by \p bytes in one step and sees both the data and the directory
  /// entry onto the disk. A link at \p path stays a link, an existing file keeps its mode. False,
  /// with the old file as it was and no temporary file left, when that fails.
  virtual bool writeAtomically(QByteArrayView bytes, const QString &path) = 0;

  /// Gives the file at \p path, which need not exist, the content \p bytes, for files that others
  /// may have set up: in one step as above where its directory allows that, in place where only the
  /// file itself may be written. False when that fails.
  virtual bool write(QByteArrayView bytes, const QString &path) = 0;

  /// The names of the entries of a directory, without the hidden ones, in the system's order; none
  /// when it cannot be listed.
  virtual std::optional<QStringList> contentsOfDirectory(const QString &path) const = 0;

  /// When the file at \p path was created: its birth time, its modification time where the file
  /// system keeps none. None when the file cannot be examined.
  virtual std::optional<Date> creationDate(const QString &path) const = 0;

  /// How many bytes the file at \p path holds; none when it cannot be examined.
  virtual std::optional<qint64> fileSize(const QString &path) const = 0;

  /// Removes a file. False when it is still there afterwards.
  virtual bool removeItem(const QString &path) = 0;
};

}  // namespace lanternix
