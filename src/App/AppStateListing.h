#pragma once

#include "App/AppState.h"

#include <QtCore/QSet>
#include <QtCore/QUuid>

#include <optional>
#include <vector>

namespace lanternix {

/// What the panel shows for the present groups, items and query, as positions in the store's lists.
/// Made at the first read after a change and kept until the next one, so that a keystroke costs one
/// pass over the items however many views read.
struct AppState::Listing {
  /// The groups that the scope names, in storage order; absent without a usable scope.
  std::optional<std::vector<qsizetype>> scopedGroups;
  QSet<QUuid> scopedGroupIds;

  /// The groups to show, in the panel's order.
  std::vector<qsizetype> filteredGroups;

  /// The items that match the query: those of the arrangement's first bucket in display order, then
  /// those of its second, and so on. Absent while nothing is searched and all items are shown.
  struct Matches {
    std::vector<qsizetype> positions;
    std::vector<qsizetype> bucketEnds;
  };
  std::optional<Matches> matches;

  /// The items that the arrow keys walk through; absent until it is asked for.
  std::optional<std::vector<qsizetype>> navigationItems;
};

}  // namespace lanternix
