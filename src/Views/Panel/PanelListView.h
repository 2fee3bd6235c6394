#pragma once

#include "Views/Panel/GroupSectionView.h"
#include "Views/Panel/ItemRowView.h"
#include "Views/Panel/PanelListLayout.h"
#include "Views/Panel/PanelMetrics.h"
#include "Views/Panel/SectionHeaderView.h"

#include <QtWidgets/QAbstractScrollArea>

namespace lanternix {

class AppState;
class PanelListModel;

/// The panel's scrolling list. One widget that draws only the rows in sight, so that ten thousand
/// items cost what ten cost. A click opens an item or folds a group; the selection is moved by the
/// panel's keys and is always kept in sight.
class PanelListView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  PanelListView(AppState &appState, PanelListModel &model, QWidget *parent = nullptr);

  AppState &appState() const { return m_appState; }
  PanelListModel &model() const { return m_model; }

  /// Where a row is drawn, in viewport coordinates; it may lie outside the viewport.
  QRect rowRect(qsizetype row) const;
  /// The row at a viewport position, or -1.
  qsizetype rowAt(const QPoint &position) const;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  bool viewportEvent(QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;

 private:
  void updateMetrics();
  void layOutRows();
  void updateScrollBar();
  void scrollToSelection();
  void setHoveredRow(qsizetype row);
  bool isClickable(qsizetype row) const;
  void activate(qsizetype row);
  void paintRow(QPainter &painter, qsizetype row) const;
  void paintDivider(QPainter &painter, const QRectF &row) const;

  AppState &m_appState;
  PanelListModel &m_model;
  PanelMetrics m_metrics;
  ItemRowView m_itemRow;
  GroupSectionView m_groupSection;
  SectionHeaderView m_recentHeader;
  PanelListLayout m_layout;
  qsizetype m_hoveredRow = -1;
  qsizetype m_pressedRow = -1;
};

}  // namespace lanternix
