#pragma once

#include "Models/SystemColor.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QUuid>

namespace lanternix {

/// A named, coloured group of items. A plain value; identity is told by `id`.
struct PathGroup {
  QUuid id;
  QString name;
  /// Name of the symbol shown beside the title.
  QString iconName;
  /// A colour's name as stored. Any text is allowed; see color().
  QString colorName;
  /// Position in the list of groups. Gaps and duplicates occur; readers sort stably.
  qint64 order = 0;
  bool isExpanded = true;

  /// The colour that `colorName` names exactly (case matters); blue for any other text.
  SystemColor color() const;

  friend bool operator==(const PathGroup &, const PathGroup &) = default;
};

/// Hash over every field.
size_t qHash(const PathGroup &group, size_t seed = 0) noexcept;

}  // namespace lanternix

// Lists may move it as bytes.
Q_DECLARE_TYPEINFO(lanternix::PathGroup, Q_RELOCATABLE_TYPE);
