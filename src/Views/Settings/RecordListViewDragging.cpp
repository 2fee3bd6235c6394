// Dragging rows within a list, and things onto its rows.
#include "Views/Settings/EdgeScroller.h"
#include "Views/Settings/RecordListModel.h"
#include "Views/Settings/RecordListView.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/LanternixStyle.h"
#include "Views/Style/SystemColors.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemDelegate>

#include <algorithm>
#include <memory>

namespace lanternix {

namespace {

// A drag's picture is narrower than its row, so that it does not hide where the row would go.
constexpr int widestPicture = 220;
constexpr double pictureShare = 0.75;  // of the row
constexpr float pictureOpacity = 0.8F;
constexpr double pictureRadius = 6;
constexpr int lineMargin = 10;
constexpr double markWidth = 2;
constexpr double dotRadius = 3;

}  // namespace

bool RecordListView::takesOnRow(const QMimeData & /*payload*/) const {
  return false;
}

void RecordListView::dropOnRow(const QMimeData & /*payload*/, const QUuid & /*id*/) {}

QPixmap RecordListView::dragPicture(const QModelIndex &index) const {
  const QSize row = visualRect(index).size();
  const QRect area(0, 0, std::min(widestPicture, qRound(row.width() * pictureShare)), row.height());
  QPixmap picture(area.size() * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(fillColor(FillStyle::quaternary, palette()));
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), pictureRadius,
                          pictureRadius);
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = area;
  itemDelegate()->paint(&painter, option, index);
  if (style()->styleHint(LanternixStyle::blendsWindows) != 0) {
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(area, withOpacity(Qt::black, pictureOpacity));
  }
  return picture;
}

void RecordListView::startDrag(Qt::DropActions actions) {
  const QModelIndex index = currentIndex();
  std::unique_ptr<QMimeData> payload(index.isValid() ? m_model.mimeData({index}) : nullptr);
  if (!payload) {
    return;
  }
  auto *drag = new QDrag(this);  // which deletes itself when it is over
  drag->setMimeData(payload.release());
  const QPixmap picture = dragPicture(index);
  drag->setPixmap(picture);
  // Held where it was pressed, or by its end.
  const QPoint pressed = m_pressPosition - visualRect(index).topLeft();
  const int end = qFloor(picture.deviceIndependentSize().width()) - 1;
  drag->setHotSpot({std::min(pressed.x(), end), pressed.y()});
  drag->exec(actions, Qt::MoveAction);
}

void RecordListView::dragEnterEvent(QDragEnterEvent *event) {
  const QMimeData &payload = *event->mimeData();
  m_drag = m_model.draggedRow(payload) >= 0 ? Drag::ofRow
           : takesOnRow(payload)            ? Drag::ontoRow
                                            : Drag::none;
  follow(*event);
  if (m_drag != Drag::none) {
    // Wherever it has come in: else the list would not be asked again.
    event->accept();
  }
}

void RecordListView::dragMoveEvent(QDragMoveEvent *event) {
  follow(*event);
  m_edgeScroller->follow(m_dragPosition);
}

void RecordListView::follow(QDropEvent &event) {
  m_dragPosition = event.position().toPoint();
  placeMarks();
  if (m_insertionRow.has_value()) {
    event.setDropAction(Qt::MoveAction);
    event.accept();
  } else if (m_dragTargetId.has_value()) {
    // Never a move, which would ask the text's owner to remove it.
    event.setDropAction(Qt::CopyAction);
    event.accept();
  } else {
    event.ignore();
  }
}

void RecordListView::placeMarks() {
  m_insertionRow = m_drag == Drag::ofRow ? std::optional(gapAt(m_dragPosition)) : std::nullopt;
  m_dragTargetId =
      m_drag == Drag::ontoRow ? m_model.idAt(indexAt(m_dragPosition).row()) : std::nullopt;
  viewport()->update();
}

int RecordListView::gapAt(const QPoint &position) const {
  const QModelIndex index = indexAt(position);
  if (!index.isValid()) {
    return position.y() < 0 ? 0 : m_model.rowCount();
  }
  return position.y() > visualRect(index).center().y() ? index.row() + 1 : index.row();
}

void RecordListView::scrollContentsBy(int dx, int dy) {
  QListView::scrollContentsBy(dx, dy);
  if (m_drag != Drag::none) {
    placeMarks();  // the pointer rests, the rows pass below it
  }
}

void RecordListView::dragLeaveEvent(QDragLeaveEvent *event) {
  QListView::dragLeaveEvent(event);
  endDrag();
}

void RecordListView::endDrag() {
  m_edgeScroller->stop();
  m_drag = Drag::none;
  placeMarks();
}

void RecordListView::dropEvent(QDropEvent *event) {
  const QMimeData &payload = *event->mimeData();
  follow(*event);
  const std::optional<int> gap = m_insertionRow;
  const std::optional<QUuid> target = m_dragTargetId;
  endDrag();
  const int row = m_model.draggedRow(payload);
  if (gap.has_value() && row >= 0) {
    if (*gap != row && *gap != row + 1) {
      m_model.moveRow(row, *gap);
    }
  } else if (target.has_value()) {
    dropOnRow(payload, *target);
  }
}

void RecordListView::paintEvent(QPaintEvent *event) {
  QListView::paintEvent(event);
  if (!m_insertionRow.has_value()) {
    return;
  }
  const QRect last = visualRect(m_model.index(m_model.rowCount() - 1));
  const bool isAtEnd = *m_insertionRow >= m_model.rowCount();
  const int y = isAtEnd ? last.bottom() : visualRect(m_model.index(*m_insertionRow)).top();
  const QRectF line(lineMargin, std::clamp<double>(y, dotRadius, viewport()->height() - dotRadius),
                    viewport()->width() - 2 * lineMargin, 0);
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(accentColor(palette()), markWidth));
  painter.drawLine(line.topLeft(), line.topRight());
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawEllipse(line.topLeft(), dotRadius, dotRadius);
}

}  // namespace lanternix
