#pragma once

#include "Views/Panel/PanelRow.h"

#include <QtCore/QHash>
#include <QtCore/QList>

#include <vector>

namespace lanternix {

/// Where each row of the panel's list stands, in logical pixels from the top of the list. Finding
/// the row at a position takes logarithmic time, so that long lists scroll like short ones.
///
/// The rows of a group that is half unfolded are on their way down from under its header: what is
/// still above the header's lower edge is out of sight.
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

  /// How far groups are unfolded, 0 to 1, by the rows of their headers; a group that is not
  /// mentioned shows its rows in full.
  using Openness = QHash<qsizetype, double>;

  void layOut(const QList<PanelRow> &rows, const Heights &heights, const Openness &openness = {});

  /// Height of the whole list, with its padding.
  int height() const { return m_height; }
  /// The part of the row that is in sight; nothing is when both are the same.
  int top(qsizetype row) const { return m_spans[static_cast<size_t>(row)].top; }
  int bottom(qsizetype row) const { return m_spans[static_cast<size_t>(row)].bottom; }
  /// Where the whole row begins, be it out of sight.
  int wholeTop(qsizetype row) const { return m_spans[static_cast<size_t>(row)].wholeTop; }

  /// The row that covers \p y, or -1 in a gap or outside the list.
  qsizetype rowAt(int y) const;
  /// The first row that reaches below \p y, or the number of rows.
  qsizetype firstRowBelow(int y) const;

 private:
  struct Span {
    int top;
    int bottom;
    int wholeTop;
  };

  std::vector<Span> m_spans;
  int m_height = 0;
};

}  // namespace lanternix
