#include "Views/Settings/RecordListView.h"

#include "Views/Settings/EdgeScroller.h"
#include "Views/Settings/RecordListModel.h"
#include "Views/Style/SlimScrollBar.h"

#include <QtGui/QContextMenuEvent>
#include <QtGui/QKeyEvent>

#include <algorithm>

namespace lanternix {

namespace {

/// Between the list's edge and its first row, in logical pixels.
constexpr int topMargin = 6;

}  // namespace

RecordListView::RecordListView(RecordListModel &model, const QString &name, QWidget *parent)
    : QListView(parent), m_model(model), m_edgeScroller(new EdgeScroller(*this)) {
  setAccessibleName(name);
  setFrameShape(QFrame::NoFrame);
  viewport()->setAutoFillBackground(false);
  setViewportMargins(0, topMargin, 0, 0);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  new SlimScrollBar(this);  // which owns it
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setDragDropMode(DragDrop);
  setDropIndicatorShown(false);  // the list draws its own
  setModel(&model);
  connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &RecordListView::rememberPlace);
  connect(&model, &QAbstractItemModel::modelReset, this, &RecordListView::restoreSelection);
}

void RecordListView::setSelectedId(const std::optional<QUuid> &id) {
  m_vacatedRow.reset();
  const QModelIndex index = id.has_value() ? m_model.index(m_model.rowOf(*id)) : QModelIndex();
  if (index.isValid()) {
    setCurrentIndex(index);
  } else {
    clearSelection();
    setCurrentIndex({});
  }
}

void RecordListView::note(const std::optional<QUuid> &selected) {
  if (m_selectedId != selected) {
    m_selectedId = selected;
    m_vacatedRow.reset();
    Q_EMIT selectedIdChanged();
  }
}

void RecordListView::selectionChanged(const QItemSelection &selected,
                                      const QItemSelection &deselected) {
  QListView::selectionChanged(selected, deselected);
  const QModelIndexList indexes = selectedIndexes();
  note(indexes.isEmpty() ? std::nullopt : m_model.idAt(indexes.front().row()));
}

void RecordListView::rememberPlace() {
  if (m_selectedId.has_value()) {
    m_vacatedRow = m_model.rowOf(*m_selectedId);
  }
}

// The toolkit forgets the selection of a model that starts anew, without a word.
void RecordListView::restoreSelection() {
  // Nor does the list jump to the selected row when another one comes or goes.
  setAutoScroll(false);
  const std::optional<QUuid> id = m_selectedId;
  const int row = id.has_value() ? m_model.rowOf(*id) : -1;
  if (row >= 0) {
    selectionModel()->setCurrentIndex(m_model.index(row), QItemSelectionModel::ClearAndSelect);
  } else {
    const std::optional<int> place = m_vacatedRow;
    note({});
    m_vacatedRow = place;
    if (place.has_value() && m_model.rowCount() > 0) {
      const QModelIndex next = m_model.index(std::min(*place, m_model.rowCount() - 1));
      selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
    }
  }
  setAutoScroll(true);
}

void RecordListView::changeEvent(QEvent *event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
    scheduleDelayedItemsLayout();
  }
}

void RecordListView::mousePressEvent(QMouseEvent *event) {
  m_pressPosition = event->position().toPoint();
  QListView::mousePressEvent(event);
  countClick(*event);
}

void RecordListView::mouseMoveEvent(QMouseEvent *event) {
  // The toolkit would drag with any button.
  if (event->buttons() == Qt::LeftButton || event->buttons() == Qt::NoButton) {
    QListView::mouseMoveEvent(event);
  }
}

void RecordListView::mouseDoubleClickEvent(QMouseEvent *event) {
  // A second press selects and may start a drag like the first.
  mousePressEvent(event);
}

void RecordListView::countClick(const QMouseEvent &event) {
  const int count = m_clicks.press(event);
  const std::optional<QUuid> id = m_model.idAt(indexAt(event.position().toPoint()).row());
  if (count == 2 && id.has_value()) {
    // Later, for the press is not done with yet.
    QMetaObject::invokeMethod(
        this, [this, id] { Q_EMIT editRequested(*id); }, Qt::QueuedConnection);
  }
}

void RecordListView::keyPressEvent(QKeyEvent *event) {
  if (handleKey(*event)) {
    event->accept();
  } else {
    QListView::keyPressEvent(event);
  }
}

bool RecordListView::handleKey(const QKeyEvent &event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  const int step = event.key() == Qt::Key_Up ? -1 : 1;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      return modifiers == Qt::AltModifier  ? moveSelected(step)
             : modifiers == Qt::NoModifier ? selectAnew(step)
                                           : false;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return ask(event, &RecordListView::editRequested);
    case Qt::Key_F10:
      // Many keyboards have no menu key, for which this is the usual replacement.
      return modifiers == Qt::ShiftModifier && openMenuOfSelected();
    case Qt::Key_Delete:
      return ask(event, &RecordListView::deletionRequested);
    default:
      return false;
  }
}

/// A key that is held asks once: its repeats would meet the dialog's default button, and this list
/// again once that has closed the dialog.
bool RecordListView::ask(const QKeyEvent &event, void (RecordListView::*request)(const QUuid &)) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (!m_selectedId.has_value() || !isPlain) {
    return false;
  }
  if (!event.isAutoRepeat()) {
    Q_EMIT(this->*request)(QUuid(*m_selectedId));
  }
  return true;
}

bool RecordListView::moveSelected(int step) {
  const int row = m_selectedId.has_value() ? m_model.rowOf(*m_selectedId) : -1;
  const int goal = row + step;
  if (row >= 0 && goal >= 0 && goal < m_model.rowCount()) {
    // Before the row above, or behind the row below.
    m_model.moveRow(row, step < 0 ? goal : goal + 1);
    scrollTo(currentIndex());
  }
  return true;  // also at the ends, where the selection is not to move instead
}

// With nothing selected the arrows go on from where the selected row was, else from the list's end.
bool RecordListView::selectAnew(int step) {
  const int count = m_model.rowCount();
  if (m_selectedId.has_value() || count == 0) {
    return false;
  }
  const int below = m_vacatedRow.value_or(step > 0 ? 0 : count);
  setCurrentIndex(m_model.index(std::clamp(step > 0 ? below : below - 1, 0, count - 1)));
  return true;
}

void RecordListView::contextMenuEvent(QContextMenuEvent *event) {
  if (event->reason() == QContextMenuEvent::Keyboard) {
    openMenuOfSelected();
  } else if (const std::optional<QUuid> id = m_model.idAt(indexAt(event->pos()).row())) {
    Q_EMIT menuRequested(*id, event->globalPos());
  }
}

bool RecordListView::openMenuOfSelected() {
  if (!m_selectedId.has_value()) {
    return false;
  }
  scrollTo(currentIndex());
  // Below the row, which stays readable.
  constexpr int indentation = 20;
  const QPoint corner = visualRect(currentIndex()).bottomLeft() + QPoint(indentation, 0);
  Q_EMIT menuRequested(*m_selectedId, viewport()->mapToGlobal(corner));
  return true;
}

}  // namespace lanternix
