#include "Utilities/WindowEdgeResizer.h"

#include "Platform/WindowSystem.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>

#include <utility>

namespace lanternix {

namespace {

constexpr int edgeWidth = 5;
constexpr int cornerLength = 14;

Qt::CursorShape cursorFor(Qt::Edges edges) {
  if (edges == (Qt::TopEdge | Qt::LeftEdge) || edges == (Qt::BottomEdge | Qt::RightEdge)) {
    return Qt::SizeFDiagCursor;
  }
  if (edges == (Qt::TopEdge | Qt::RightEdge) || edges == (Qt::BottomEdge | Qt::LeftEdge)) {
    return Qt::SizeBDiagCursor;
  }
  return (edges & (Qt::LeftEdge | Qt::RightEdge)) != 0 ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

}  // namespace

WindowEdgeResizer::WindowEdgeResizer(WindowSystem &windowSystem, QWindow &window)
    : m_windowSystem(windowSystem), m_window(window) {
  window.installEventFilter(this);
}

WindowEdgeResizer::~WindowEdgeResizer() {
  showCursor({});
}

Qt::Edges WindowEdgeResizer::edgesAt(const QPoint &position) const {
  const QRect frame = QRect(QPoint(), m_window.size()).marginsRemoved(m_margins);
  const auto edgesWithin = [&](int distance) {
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, position.x() < frame.left() + distance);
    edges.setFlag(Qt::RightEdge, position.x() > frame.right() - distance);
    edges.setFlag(Qt::TopEdge, position.y() < frame.top() + distance);
    edges.setFlag(Qt::BottomEdge, position.y() > frame.bottom() - distance);
    return edges;
  };
  // Along an edge, its ends count as the corner: a square of the edge's width is hard to hit.
  return edgesWithin(edgeWidth) == Qt::Edges{} ? Qt::Edges{} : edgesWithin(cornerLength);
}

bool WindowEdgeResizer::eventFilter(QObject * /*watched*/, QEvent *event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      m_tookPress = press(*static_cast<QMouseEvent *>(event));
      return m_tookPress;
    case QEvent::MouseButtonDblClick:  // follows the press that it is about
      return m_tookPress;
    case QEvent::MouseMove:
      return move(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
      return release(*static_cast<QMouseEvent *>(event));
    case QEvent::Hide:
      endResizing();
      [[fallthrough]];
    case QEvent::Leave:
      if (!m_resizing) {
        showCursor({});
      }
      return false;
    default:
      return false;
  }
}

bool WindowEdgeResizer::press(const QMouseEvent &event) {
  if (m_resizing) {
    return true;  // of another button, which must not change what is held
  }
  m_edges = edgesAt(event.position().toPoint());
  if (event.button() != Qt::LeftButton || m_edges == Qt::Edges{}) {
    return false;
  }
  if (m_windowSystem.takeDrag(m_window, m_edges, event.position().toPoint())) {
    return true;
  }
  m_resizing = true;
  m_pressPosition = m_windowSystem.pointerPosition(event);
  // Where the window really is: what the window manager has done to it may not have been told yet.
  m_pressGeometry = QRect(m_pressPosition - event.position().toPoint(), m_window.size());
  return true;
}

bool WindowEdgeResizer::move(const QMouseEvent &event) {
  if (!event.buttons().testFlag(Qt::LeftButton)) {
    endResizing();  // the release went to a menu that was opened meanwhile
  }
  if (m_resizing) {
    const QPoint position = m_windowSystem.pointerPosition(event);
    m_windowSystem.setGeometry(m_window, resized(position - m_pressPosition));
    return true;
  }
  const Qt::Edges edges =
      event.buttons() == Qt::NoButton ? edgesAt(event.position().toPoint()) : Qt::Edges{};
  showCursor(edges);
  return edges != Qt::Edges{};
}

bool WindowEdgeResizer::release(const QMouseEvent &event) {
  if (!m_resizing || event.button() != Qt::LeftButton) {
    return false;
  }
  endResizing();
  return true;
}

void WindowEdgeResizer::endResizing() {
  if (std::exchange(m_resizing, false) && m_window.size() != m_pressGeometry.size()) {
    Q_EMIT finished();
  }
}

void WindowEdgeResizer::showCursor(Qt::Edges edges) {
  const bool show = edges != Qt::Edges{};
  if (show && m_showsCursor) {
    QGuiApplication::changeOverrideCursor(cursorFor(edges));
  } else if (show) {
    QGuiApplication::setOverrideCursor(cursorFor(edges));
  } else if (m_showsCursor) {
    QGuiApplication::restoreOverrideCursor();
  }
  m_showsCursor = show;
}

QRect WindowEdgeResizer::resized(const QPoint &distance) const {
  const QSize smallest = m_window.minimumSize();
  QRect geometry = m_pressGeometry;
  // The edge opposite to the one that is pulled stays where it is.
  if (m_edges.testFlag(Qt::LeftEdge)) {
    geometry.setLeft(qMin(geometry.left() + distance.x(), geometry.right() + 1 - smallest.width()));
  } else if (m_edges.testFlag(Qt::RightEdge)) {
    geometry.setWidth(qMax(geometry.width() + distance.x(), smallest.width()));
  }
  if (m_edges.testFlag(Qt::TopEdge)) {
    geometry.setTop(qMin(geometry.top() + distance.y(), geometry.bottom() + 1 - smallest.height()));
  } else if (m_edges.testFlag(Qt::BottomEdge)) {
    geometry.setHeight(qMax(geometry.height() + distance.y(), smallest.height()));
  }
  return geometry;
}

}  // namespace lanternix
