#include "Views/Controls/ChoiceGrid.h"

#include "Views/Controls/ChoiceCell.h"
#include "Views/Style/FocusRing.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace lanternix {

namespace {

constexpr int spacing = 8;
constexpr int ringMargin = 3;  // room for the ring, all around

}  // namespace

ChoiceGrid::ChoiceGrid(const QString &name, const Shape &shape, QWidget *parent)
    : QWidget(parent), m_shape(shape) {
  setAccessibleName(name);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void ChoiceGrid::addCell(ChoiceCell *cell) {
  cell->setParent(this);
  cell->setCheckable(true);
  cell->setAutoExclusive(true);
  cell->installEventFilter(this);
  const int index = static_cast<int>(m_cells.size());
  m_cells.append(cell);
  connect(cell, &QAbstractButton::toggled, this, [this, index](bool checked) {
    updateTabStop();
    if (checked) {
      Q_EMIT currentIndexChanged(index);
    }
  });
  updateTabStop();
  placeCells();
}

int ChoiceGrid::currentIndex() const {
  const auto found = std::ranges::find_if(m_cells, &QAbstractButton::isChecked);
  return found == m_cells.end() ? -1 : static_cast<int>(found - m_cells.begin());
}

void ChoiceGrid::setCurrentIndex(int index) {
  if (index >= 0 && index < m_cells.size()) {
    const QSignalBlocker blocker(this);
    m_cells[index]->setChecked(true);
  }
}

int ChoiceGrid::columnCount(int width) const {
  return std::max(1, (width - 2 * ringMargin + spacing) / (m_shape.narrowestColumn + spacing));
}

QSize ChoiceGrid::cellSize() const {
  return m_cells.isEmpty() ? QSize() : m_cells.front()->sizeHint();
}

int ChoiceGrid::heightForWidth(int width) const {
  const int columns = columnCount(width);
  const int rows = (static_cast<int>(m_cells.size()) + columns - 1) / columns;
  return rows * cellSize().height() + std::max(0, rows - 1) * spacing + 2 * ringMargin;
}

QSize ChoiceGrid::sizeHint() const {
  const int width = m_shape.narrowestColumn + 2 * ringMargin;
  return {width, cellSize().height() + 2 * ringMargin};
}

void ChoiceGrid::placeCells() {
  const int columns = columnCount(width());
  const double room = width() - 2.0 * ringMargin - spacing * (columns - 1);
  const double column = m_shape.fillsWidth ? room / columns : m_shape.narrowestColumn;
  const QSize size = cellSize();
  for (int i = 0; i < m_cells.size(); ++i) {
    const double left = ringMargin + (i % columns) * (column + spacing);
    const int x = qRound(left + (column - size.width()) / 2);
    const int y = ringMargin + (i / columns) * (size.height() + spacing);
    m_cells[i]->setGeometry(QRect(QPoint(x, y), size));
  }
}

void ChoiceGrid::resizeEvent(QResizeEvent * /*event*/) {
  placeCells();
}

// Only one cell is a stop of the Tab key: the chosen one, or the first.
void ChoiceGrid::updateTabStop() {
  const int stop = std::max(currentIndex(), 0);
  for (int i = 0; i < m_cells.size(); ++i) {
    m_cells[i]->setFocusPolicy(i == stop ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

bool ChoiceGrid::handleKey(int index, int key) {
  const int columns = columnCount(width());
  const int last = static_cast<int>(m_cells.size()) - 1;
  int next = index;
  switch (key) {
    case Qt::Key_Left:
      next = index - 1;
      break;
    case Qt::Key_Right:
      next = index + 1;
      break;
    case Qt::Key_Up:
      next = index - columns;
      break;
    case Qt::Key_Down:
      next = index + columns;
      break;
    case Qt::Key_Home:
      next = 0;
      break;
    case Qt::Key_End:
      next = last;
      break;
    default:
      return false;
  }
  if (next >= 0 && next <= last) {
    m_cells[next]->setChecked(true);
    m_cells[next]->setFocus(Qt::OtherFocusReason);
  }
  return true;
}

bool ChoiceGrid::eventFilter(QObject *cell, QEvent *event) {
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto found = std::ranges::find(m_cells, cell);
      return found != m_cells.end() && handleKey(static_cast<int>(found - m_cells.begin()),
                                                 static_cast<QKeyEvent *>(event)->key());
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      update();
      return false;
    default:
      return false;
  }
}

void ChoiceGrid::paintEvent(QPaintEvent * /*event*/) {
  const auto focused = std::ranges::find_if(m_cells, &QWidget::hasFocus);
  if (focused == m_cells.end()) {
    return;
  }
  constexpr double distance = ringMargin - FocusRing::width / 2;
  QPainter painter(this);
  FocusRing::draw(painter, palette(),
                  QRectF((*focused)->geometry()).adjusted(-distance, -distance, distance, distance),
                  m_shape.cellRadius + distance);
}

}  // namespace lanternix
