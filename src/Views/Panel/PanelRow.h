#pragma once

#include <QtCore/QtGlobal>

namespace lanternix {

/// One row of the panel's list.
struct PanelRow {
  enum class Kind {
    recentHeader,
    item,
    divider,
    groupHeader,
    emptyGroup,  // stands in for the rows of an expanded group that has none
  };

  Kind kind;
  /// Where in AppState::items() (item) or AppState::groups() (groupHeader, emptyGroup) the row's
  /// value stands; -1 for the others.
  qsizetype position = -1;
  /// Whether the row stands by itself in the list, set off from what is above it. The rows of a
  /// group below its header do not.
  bool startsSection = true;

  friend bool operator==(const PanelRow &, const PanelRow &) = default;
};

}  // namespace lanternix
