#pragma once

#include "Views/Panel/GroupSectionView.h"
#include "Views/Panel/ItemRowView.h"
#include "Views/Panel/PanelListLayout.h"
#include "Views/Panel/PanelMetrics.h"
#include "Views/Panel/SectionHeaderView.h"

namespace lanternix {

class AppState;
class PanelListModel;

/// Draws the rows of the panel's list, each with the view of its kind, at the density that the user
/// has chosen.
class PanelRowPainter {
 public:
  struct State {
    bool selected = false;
    /// How far the pointer's highlight has faded in, 0 to 1.
    double hover = 0;
    /// How far the row's group is unfolded, 0 to 1.
    double openness = 1;
  };

  PanelRowPainter(const AppState &appState, const PanelListModel &model);
  Q_DISABLE_COPY_MOVE(PanelRowPainter)

  /// Takes over the density and the font as they are now.
  void updateMetrics();

  /// The heights of the rows, in logical pixels.
  PanelListLayout::Heights heights() const;

  /// Draws \p row of the model into \p area.
  void paint(QPainter &painter, const QPalette &palette, const QRectF &area, qsizetype row,
             State state) const;

 private:
  const AppState &m_appState;
  const PanelListModel &m_model;
  PanelMetrics m_metrics;
  ItemRowView m_itemRow;
  GroupSectionView m_groupSection;
  SectionHeaderView m_recentHeader;
};

}  // namespace lanternix
