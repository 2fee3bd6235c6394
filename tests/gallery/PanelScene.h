#pragma once

#include "Models/PathGroup.h"
#include "Models/PathItem.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace lanternix {

/// What the panel shows in a picture.
struct PanelScene {
  QList<PathGroup> groups;
  QList<PathItem> items;
  QString query;
  /// How often the down arrow is pressed.
  int steps = 0;

  /// Recent items, a search, a scope, no groups, no results, 10,000 items, long names.
  static QStringList names();
  /// One of them. Its files and folders are made below \p home.
  static PanelScene named(const QString &name, const QString &home);
};

}  // namespace lanternix
