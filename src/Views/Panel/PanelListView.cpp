#include "Views/Panel/PanelListView.h"

#include "App/AppState.h"
#include "Views/Panel/ItemContextMenu.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Style/SlimScrollBar.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

PanelListView::PanelListView(AppState &appState, PanelListModel &model, QWidget *parent)
    : QAbstractScrollArea(parent),
      m_appState(appState),
      m_model(model),
      m_rowPainter(appState, model) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  new SlimScrollBar(this);  // which owns it
  setAccessibleName(u"Items"_s);
  viewport()->setMouseTracking(true);
  viewport()->setAutoFillBackground(false);

  connect(&model, &QAbstractItemModel::modelReset, this, &PanelListView::readRows);
  connect(&appState, &AppState::selectedItemIdChanged, this, &PanelListView::scrollToSelection);
  connect(&appState, &AppState::panelItemSizeChanged, this, &PanelListView::updateMetrics);
  connect(&appState, &AppState::showURLsChanged, this, &PanelListView::updateMetrics);
  connect(&appState, &AppState::searchQueryChanged, &m_folding, &GroupFolding::finish);
  connect(&m_folding, &GroupFolding::moved, this, &PanelListView::layOutRows);
  connect(&m_folding, &GroupFolding::settled, this, [this](const QUuid &group) {
    m_model.setLingering(group, false);
    layOutRows();
  });
  connect(&m_hover, &HoverFade::faded, this, [this](qsizetype row) {
    if (row >= 0 && row < m_model.rows().size()) {
      viewport()->update(rowRect(row));
    }
  });
  readRows();
}

void PanelListView::updateMetrics() {
  m_rowPainter.updateMetrics();
  layOutRows();
  scrollToSelection();
}

void PanelListView::readRows() {
  m_hover.reset(-1);
  layOutRows();
  // A list that changes below a user who has scrolled away stays where it is; a new search does
  // not.
  if (std::exchange(m_shownQuery, m_appState.searchQuery()) != m_appState.searchQuery()) {
    scrollToSelection();
  }
}

void PanelListView::layOutRows() {
  PanelListLayout::Openness openness;
  if (m_folding.isMoving()) {
    for (qsizetype row = 0; row < m_model.rows().size(); ++row) {
      const PathGroup *group = m_model.groupAt(row);
      if (group != nullptr && m_folding.isMoving(group->id)) {
        openness.insert(row, m_folding.openness(group->id));
      }
    }
  }
  m_layout.layOut(m_model.rows(), m_rowPainter.heights(), openness);
  updateScrollBar();
  m_hover.reset(rowUnderPointer());
  viewport()->update();
}

void PanelListView::updateScrollBar() {
  QScrollBar *bar = verticalScrollBar();
  bar->setPageStep(viewport()->height());
  bar->setSingleStep(m_rowPainter.heights().item / 2);
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

void PanelListView::paintEvent(QPaintEvent *event) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  const int scrolled = verticalScrollBar()->value();
  const int bottom = event->rect().bottom() + scrolled;
  for (qsizetype row = m_layout.firstRowBelow(event->rect().top() + scrolled);
       row < m_model.rows().size() && m_layout.top(row) <= bottom; ++row) {
    if (m_layout.top(row) < m_layout.bottom(row)) {
      paintRow(painter, row);
    }
  }
}

void PanelListView::paintRow(QPainter &painter, qsizetype row) const {
  QRect area = rowRect(row);
  const int hidden = m_layout.top(row) - m_layout.wholeTop(row);
  if (hidden > 0) {
    painter.save();
    painter.setClipRect(area);
  }
  area.setTop(area.top() - hidden);
  const PathItem *item = m_model.itemAt(row);
  m_rowPainter.paint(painter, palette(), area, row,
                     {.selected = item != nullptr && m_appState.selectedItemId() == item->id,
                      .hover = m_hover.strength(row),
                      .openness = openness(m_model.groupAt(row))});
  if (hidden > 0) {
    painter.restore();
  }
}

double PanelListView::openness(const PathGroup *group) const {
  if (group == nullptr) {
    return 1;
  }
  return m_folding.isMoving(group->id) ? m_folding.openness(group->id) : group->isExpanded ? 1 : 0;
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
  if (event->type() == QEvent::Enter) {
    m_pointer = static_cast<QEnterEvent *>(event)->position().toPoint();
    m_hover.moveTo(rowUnderPointer(), isAnimated());
  } else if (event->type() == QEvent::Leave) {
    m_pointer.reset();
    m_hover.moveTo(-1, isAnimated());
  } else if (event->type() == QEvent::Hide) {
    // Nothing moves in a window that nobody sees.
    m_pointer.reset();
    m_hover.reset(-1);
    m_folding.finish();
  }
  return QAbstractScrollArea::viewportEvent(event);
}

void PanelListView::scrollContentsBy(int /*dx*/, int /*dy*/) {
  m_hover.reset(rowUnderPointer());
  viewport()->update();
}

bool PanelListView::isClickable(qsizetype row) const {
  return m_model.itemAt(row) != nullptr ||
         (row >= 0 && m_model.rows()[row].kind == PanelRow::Kind::groupHeader);
}

bool PanelListView::isAnimated() const {
  return isVisible() && style()->styleHint(QStyle::SH_Widget_Animate, nullptr, this) != 0;
}

void PanelListView::mousePressEvent(QMouseEvent *event) {
  const qsizetype row = rowAt(event->position().toPoint());
  const bool isPress = event->button() == Qt::LeftButton && isClickable(row);
  m_pressed = isPress ? m_model.identityAt(row) : std::nullopt;
  // What is no button is background, by which the panel is moved.
  event->setAccepted(isPress);
}

void PanelListView::mouseDoubleClickEvent(QMouseEvent *event) {
  // The second of two quick presses is a press like any other.
  mousePressEvent(event);
}

void PanelListView::mouseMoveEvent(QMouseEvent *event) {
  m_pointer = event->position().toPoint();
  m_hover.moveTo(rowUnderPointer(), isAnimated());
  event->setAccepted(m_pressed.has_value());
}

void PanelListView::mouseReleaseEvent(QMouseEvent *event) {
  const auto pressed = std::exchange(m_pressed, std::nullopt);
  event->setAccepted(pressed.has_value());
  const qsizetype row = rowAt(event->position().toPoint());
  if (pressed && pressed == m_model.identityAt(row)) {
    activate(row);
  }
}

void PanelListView::activate(qsizetype row) {
  // By value: opening an item or folding a group changes the rows.
  if (const PathItem *item = m_model.itemAt(row)) {
    m_appState.openItem(PathItem(*item));
  } else if (const PathGroup *group = m_model.groupAt(row)) {
    toggle(PathGroup(*group));
  }
}

void PanelListView::toggle(const PathGroup &group) {
  if (isAnimated()) {
    m_model.setLingering(group.id, true);
    m_folding.start(group.id, !group.isExpanded);
  }
  m_appState.toggleGroup(group.id);
}

void PanelListView::contextMenuEvent(QContextMenuEvent *event) {
  if (const PathItem *item = m_model.itemAt(rowAt(event->pos()))) {
    ItemContextMenu::popUp(m_appState, *item, event->globalPos(), this);
  }
}

bool PanelListView::openMenuOfSelection() {
  const auto &selected = m_appState.selectedItemId();
  const qsizetype row = selected ? m_model.rowOfItem(*selected) : -1;
  if (row < 0) {
    return false;
  }
  scrollToSelection();
  // Below the name, which stays readable.
  const QRect area = rowRect(row);
  const QPoint place(area.left() + static_cast<int>(2 * PanelMetrics::sidePadding), area.bottom());
  ItemContextMenu::popUp(m_appState, *m_model.itemAt(row), viewport()->mapToGlobal(place), this);
  return true;
}

}  // namespace lanternix
