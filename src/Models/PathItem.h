#pragma once

#include "Models/Date.h"
#include "Models/ItemType.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QUuid>

#include <optional>

namespace lanternix {

/// One launchable entry. A plain value; whether two values are the same item is told by `id`.
struct PathItem {
  QUuid id;
  QString name;
  /// A file system path (directory, file), a URL (link) or a shell command line (command).
  QString path;
  ItemType type = ItemType::directory;
  /// The `id` of the owning group, which may no longer exist.
  QUuid groupId;
  Date dateAdded;
  /// Absent until the item is opened for the first time.
  std::optional<Date> lastAccessed;
  /// Position inside the group. Gaps and duplicates occur; readers sort stably.
  qint64 order = 0;

  /// Whether the item could open: something exists at the path of a directory or a file (either
  /// kind will do, and no tilde is expanded), a link parses as a URL, a command is not blank.
  /// Touches the file system for directories and files only.
  bool isValid() const;

  friend bool operator==(const PathItem &, const PathItem &) = default;
};

/// Hash over every field.
size_t qHash(const PathItem &item, size_t seed = 0) noexcept;

}  // namespace lanternix

// Lists may move it as bytes.
Q_DECLARE_TYPEINFO(lanternix::PathItem, Q_RELOCATABLE_TYPE);
