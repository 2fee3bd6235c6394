#include "Views/Panel/PanelListView.h"

#include "App/AppState.h"
#include "Views/Panel/ItemContextMenu.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/SlimScrollBar.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int dividerHeight = 1;
constexpr int dividerPadding = 6;
constexpr int dividerSidePadding = 16;

}  // namespace

PanelListView::PanelListView(AppState &appState, PanelListModel &model, QWidget *parent)
    : QAbstractScrollArea(parent),
      m_appState(appState),
      m_model(model),
      m_metrics(PanelMetrics::forSize(appState.panelItemSize())),
      m_itemRow(appState, m_metrics),
      m_groupSection(m_metrics),
      m_recentHeader(u"Recently Opened"_s, u"clock.fill"_s, SystemColor::orange) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBar(new SlimScrollBar(Qt::Vertical, this));
  setAccessibleName(u"Items"_s);
  viewport()->setMouseTracking(true);
  viewport()->setAutoFillBackground(false);

  connect(&model, &QAbstractItemModel::modelReset, this, &PanelListView::layOutRows);
  connect(&appState, &AppState::selectedItemIdChanged, this, &PanelListView::scrollToSelection);
  connect(&appState, &AppState::panelItemSizeChanged, this, &PanelListView::updateMetrics);
  connect(&appState, &AppState::showURLsChanged, this, &PanelListView::layOutRows);
  layOutRows();
}

void PanelListView::updateMetrics() {
  m_metrics = PanelMetrics::forSize(m_appState.panelItemSize());
  layOutRows();
}

void PanelListView::layOutRows() {
  m_layout.layOut(m_model.rows(),
                  {
                      .recentHeader = static_cast<int>(m_recentHeader.height()),
                      .item = static_cast<int>(m_itemRow.height()),
                      .divider = dividerHeight + 2 * dividerPadding,
                      .groupHeader = static_cast<int>(m_groupSection.headerHeight()),
                      .emptyGroup = static_cast<int>(m_groupSection.emptyHeight()),
                  });
  m_pressedRow = -1;
  updateScrollBar();
  scrollToSelection();
  const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
  setHoveredRow(viewport()->underMouse() ? rowAt(pointer) : -1);
  viewport()->update();
}

void PanelListView::updateScrollBar() {
  QScrollBar *bar = verticalScrollBar();
  bar->setPageStep(viewport()->height());
  bar->setSingleStep(static_cast<int>(m_itemRow.height()) / 2);
  bar->setRange(0, qMax(0, m_layout.height() - viewport()->height()));
}

QRect PanelListView::rowRect(qsizetype row) const {
  const int top = m_layout.top(row) - verticalScrollBar()->value();
  return {0, top, viewport()->width(), m_layout.bottom(row) - m_layout.top(row)};
}

qsizetype PanelListView::rowAt(const QPoint &position) const {
  return viewport()->rect().contains(position)
             ? m_layout.rowAt(position.y() + verticalScrollBar()->value())
             : -1;
}

void PanelListView::scrollToSelection() {
  viewport()->update();
  const auto &selected = m_appState.selectedItemId();
  const qsizetype row = selected ? m_model.rowOfItem(*selected) : -1;
  if (row < 0) {
    return;
  }
  // The first item of the list or of a group brings what stands above it along.
  const qsizetype above = row - 1;
  const bool bringAbove = above >= 0 && m_model.itemAt(above) == nullptr;
  const int top = above <= 0 ? 0 : bringAbove ? m_layout.top(above) : m_layout.top(row);
  const int bottom = m_layout.bottom(row);
  QScrollBar *bar = verticalScrollBar();
  if (top < bar->value()) {
    bar->setValue(top);
  } else if (bottom > bar->value() + viewport()->height()) {
    bar->setValue(bottom - viewport()->height());
  }
}

void PanelListView::setHoveredRow(qsizetype row) {
  if (row == m_hoveredRow) {
    return;
  }
  m_hoveredRow = row;
  viewport()->update();
}

void PanelListView::paintEvent(QPaintEvent *event) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  const int scrolled = verticalScrollBar()->value();
  const int bottom = event->rect().bottom() + scrolled;
  for (qsizetype row = m_layout.firstRowBelow(event->rect().top() + scrolled);
       row < m_model.rows().size() && m_layout.top(row) <= bottom; ++row) {
    paintRow(painter, row);
  }
}

void PanelListView::paintRow(QPainter &painter, qsizetype row) const {
  const QRectF area = rowRect(row);
  const PathItem *item = m_model.itemAt(row);
  const PathGroup *group = m_model.groupAt(row);
  switch (m_model.rows()[row].kind) {
    case PanelRow::Kind::recentHeader:
      m_recentHeader.paint(painter, palette(), area);
      break;
    case PanelRow::Kind::item:
      m_itemRow.paint(painter, palette(), area, *item,
                      {.selected = m_appState.selectedItemId() == item->id,
                       .hover = row == m_hoveredRow ? 1.0 : 0.0});
      break;
    case PanelRow::Kind::divider:
      paintDivider(painter, area);
      break;
    case PanelRow::Kind::groupHeader:
      m_groupSection.paintHeader(painter, palette(), area, *group,
                                 std::ssize(m_appState.itemPositionsForGroup(group->id)));
      break;
    case PanelRow::Kind::emptyGroup:
      m_groupSection.paintEmpty(painter, palette(), area);
      break;
  }
}

void PanelListView::paintDivider(QPainter &painter, const QRectF &row) const {
  painter.fillRect(
      row.adjusted(dividerSidePadding, dividerPadding, -dividerSidePadding, -dividerPadding),
      fillColor(FillStyle::quaternary, palette()));
}

void PanelListView::resizeEvent(QResizeEvent *event) {
  QAbstractScrollArea::resizeEvent(event);
  updateScrollBar();
}

void PanelListView::changeEvent(QEvent *event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
    updateMetrics();
  }
}

bool PanelListView::viewportEvent(QEvent *event) {
  if (event->type() == QEvent::Leave || event->type() == QEvent::Hide) {
    setHoveredRow(-1);
  }
  return QAbstractScrollArea::viewportEvent(event);
}

bool PanelListView::isClickable(qsizetype row) const {
  return m_model.itemAt(row) != nullptr ||
         (row >= 0 && m_model.rows()[row].kind == PanelRow::Kind::groupHeader);
}

void PanelListView::mousePressEvent(QMouseEvent *event) {
  const qsizetype row = rowAt(event->position().toPoint());
  m_pressedRow = event->button() == Qt::LeftButton && isClickable(row) ? row : -1;
  // What is no button is background, by which the panel is moved.
  event->setAccepted(m_pressedRow >= 0);
}

void PanelListView::mouseDoubleClickEvent(QMouseEvent *event) {
  // The second of two quick presses is a press like any other.
  mousePressEvent(event);
}

void PanelListView::mouseMoveEvent(QMouseEvent *event) {
  setHoveredRow(rowAt(event->position().toPoint()));
  event->setAccepted(m_pressedRow >= 0);
}

void PanelListView::mouseReleaseEvent(QMouseEvent *event) {
  const qsizetype row = std::exchange(m_pressedRow, -1);
  event->setAccepted(row >= 0);
  if (row >= 0 && row == rowAt(event->position().toPoint())) {
    activate(row);
  }
}

void PanelListView::activate(qsizetype row) {
  // By value: opening an item or folding a group changes the rows.
  if (const PathItem *item = m_model.itemAt(row)) {
    m_appState.openItem(PathItem(*item));
  } else if (const PathGroup *group = m_model.groupAt(row)) {
    m_appState.toggleGroup(QUuid(group->id));
  }
}

void PanelListView::contextMenuEvent(QContextMenuEvent *event) {
  if (const PathItem *item = m_model.itemAt(rowAt(event->pos()))) {
    ItemContextMenu::popUp(m_appState, *item, event->globalPos(), this);
  }
}

}  // namespace lanternix
