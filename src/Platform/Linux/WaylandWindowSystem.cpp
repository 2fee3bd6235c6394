#include "Platform/Linux/WaylandWindowSystem.h"

#include <QtGui/QWindow>

namespace lanternix {

/// Compositors that tile leave out windows of one size. Once it is up, it may have any again.
void WaylandWindowSystem::preparePanel(QWindow &window) {
  releaseSize();
  fixSize(window);
  connect(&window, &QWindow::activeChanged, this, &WaylandWindowSystem::releaseSize,
          Qt::UniqueConnection);
}

bool WaylandWindowSystem::takeDrag(QWindow &window, Qt::Edges edges, QPoint /*position*/) {
  releaseSize();  // a compositor may have refused the keyboard
  return edges == Qt::Edges{} ? window.startSystemMove() : window.startSystemResize(edges);
}

void WaylandWindowSystem::fixSize(QWindow &window) {
  m_fixed = &window;
  m_smallest = window.minimumSize();
  m_largest = window.maximumSize();
  window.setMinimumSize(window.size());
  window.setMaximumSize(window.size());
}

void WaylandWindowSystem::releaseSize() {
  if (m_fixed) {
    m_fixed->setMinimumSize(m_smallest);
    m_fixed->setMaximumSize(m_largest);
    m_fixed = nullptr;
  }
}

}  // namespace lanternix
