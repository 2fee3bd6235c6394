#pragma once

#include "Views/Panel/GroupFolding.h"
#include "Views/Panel/HoverFade.h"
#include "Views/Panel/PanelListLayout.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Panel/PanelRowPainter.h"

#include <QtWidgets/QAbstractScrollArea>

namespace lanternix {

class AppState;

/// The panel's scrolling list. One widget that draws only the rows in sight, so that ten thousand
/// items cost what ten cost. A click opens an item or folds a group; the selection is moved by the
/// panel's keys and is brought into sight whenever it or the search changes.
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

  /// Opens the context menu of the selected item beside its row; false when there is none.
  bool openMenuOfSelection();

  /// Does what a click on \p row does: opens its item, or folds or unfolds its group.
  void activate(qsizetype row);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  bool viewportEvent(QEvent *event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;

 private:
  void updateMetrics();
  void readRows();
  void layOutRows();
  void updateScrollBar();
  void scrollToSelection();
  qsizetype rowUnderPointer() const { return m_pointer ? rowAt(*m_pointer) : -1; }
  bool isClickable(qsizetype row) const;
  bool isAnimated() const;
  double openness(const PathGroup *group) const;
  void toggle(const PathGroup &group);
  void paintRow(QPainter &painter, qsizetype row) const;

  AppState &m_appState;
  PanelListModel &m_model;
  PanelRowPainter m_rowPainter;
  PanelListLayout m_layout;
  HoverFade m_hover;
  GroupFolding m_folding;
  std::optional<PanelListModel::Identity> m_pressed;
  /// Where the pointer is on the viewport; none when it is elsewhere.
  std::optional<QPoint> m_pointer;
  /// The query for which the selection was last brought into sight.
  QString m_shownQuery;
};

}  // namespace lanternix
