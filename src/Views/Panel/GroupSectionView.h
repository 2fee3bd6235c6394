#pragma once

#include <QtCore/QtGlobal>

class QPainter;
class QPalette;
class QRectF;

namespace lanternix {

struct PanelMetrics;
struct PathGroup;

/// The header of one group in the panel's list, and the line that stands below it when the group is
/// unfolded but empty. Stateless; the list draws every group with it.
class GroupSectionView {
 public:
  explicit GroupSectionView(const PanelMetrics &metrics);

  /// Heights in logical pixels.
  double headerHeight() const;
  double emptyHeight() const;

  struct State {
    /// The number of items that the panel shows in the group.
    qsizetype count = 0;
    /// How far the group is unfolded, 0 to 1.
    double openness = 1;
  };

  /// Draws the header of \p group.
  void paintHeader(QPainter &painter, const QPalette &palette, const QRectF &row,
                   const PathGroup &group, State state) const;

  /// Draws "No items in this group".
  void paintEmpty(QPainter &painter, const QPalette &palette, const QRectF &row) const;

 private:
  void paintCount(QPainter &painter, const QPalette &palette, const QRectF &row, double left,
                  qsizetype count) const;

  const PanelMetrics &m_metrics;
};

}  // namespace lanternix
