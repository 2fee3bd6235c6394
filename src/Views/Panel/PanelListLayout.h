#pragma once

#include "Views/Panel/PanelRow.h"

#include <QtCore/QList>

#include <vector>

namespace lanternix {

/// Where each row of the panel's list stands, in logical pixels from the top of the list. Finding
/// the row at a position takes logarithmic time, so that long lists scroll like short ones.
class PanelListLayout {
 public:
  /// The heights of the rows of each kind.
  struct Heights {
    int recentHeader = 0;
    int item = 0;
    int divider = 0;
    int groupHeader = 0;
    int emptyGroup = 0;
  };

  void layOut(const QList<PanelRow> &rows, const Heights &heights);

  /// Height of the whole list, with its padding.
  int height() const { return m_height; }
  int top(qsizetype row) const { return m_spans[static_cast<size_t>(row)].top; }
  int bottom(qsizetype row) const { return m_spans[static_cast<size_t>(row)].bottom; }

  /// The row that covers \p y, or -1 in a gap or outside the list.
  qsizetype rowAt(int y) const;
  /// The first row that reaches below \p y, or the number of rows.
  qsizetype firstRowBelow(int y) const;

 private:
  struct Span {
    int top;
    int bottom;
  };

  std::vector<Span> m_spans;
  int m_height = 0;
};

}  // namespace lanternix
