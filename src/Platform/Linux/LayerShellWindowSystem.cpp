#include "Platform/Linux/LayerShellWindowSystem.h"

#include "Platform/Linux/WaylandWindowSystems.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>

#include <LayerShellQt/Window>

namespace lanternix {
namespace {

using LayerWindow = LayerShellQt::Window;

}  // namespace

LayerShellWindowSystem::LayerShellWindowSystem(std::unique_ptr<WaylandLayerShell> shell)
    : m_shell(std::move(shell)) {}

QRect LayerShellWindowSystem::workArea() const {
  const std::optional<QSize> size = m_shell->usableSize();
  return size ? QRect(QPoint(), *size) : QtWindowSystem::workArea();
}

void LayerShellWindowSystem::preparePanel(QWindow &window) {
  LayerWindow *surface = LayerWindow::get(&window);
  surface->setLayer(LayerWindow::LayerOverlay);
  surface->setScope(QStringLiteral("lanternix"));
  surface->setKeyboardInteractivity(LayerWindow::KeyboardInteractivityOnDemand);
  surface->setScreenConfiguration(LayerWindow::ScreenFromCompositor);
  surface->setAnchors({LayerWindow::AnchorLeft, LayerWindow::AnchorTop});
  m_position = m_wanted;
  window.installEventFilter(this);
}

void LayerShellWindowSystem::setGeometry(QWindow &window, const QRect &geometry) {
  m_wanted = geometry.topLeft();
  LayerWindow::get(&window)->setMargins({m_wanted.x(), m_wanted.y(), 0, 0});
  window.resize(geometry.size());
}

QPoint LayerShellWindowSystem::pointerPosition(const QWindow & /*window*/,
                                               const QMouseEvent &event) const {
  return m_position + event.position().toPoint();
}

bool LayerShellWindowSystem::eventFilter(QObject * /*watched*/, QEvent *event) {
  if (event->type() == QEvent::UpdateRequest && m_wanted != m_position) {
    // Queued, because the picture is made and sent when this returns.
    QMetaObject::invokeMethod(this, &LayerShellWindowSystem::notePlacing, Qt::QueuedConnection);
  }
  return false;
}

void LayerShellWindowSystem::notePlacing() {
  const auto note = [self = QPointer(this), position = m_wanted] {
    if (LayerShellWindowSystem *system = self.data()) {
      system->m_position = position;
    }
  };
  // Some compositors place their surfaces only when they have dealt with all requests that wait.
  m_shell->afterAllSent([self = QPointer(this), note] {
    if (LayerShellWindowSystem *system = self.data()) {
      system->m_shell->afterAllSent(note);
    }
  });
}

std::unique_ptr<WindowSystem> makeLayerShellWindowSystem() {
  std::unique_ptr<WaylandLayerShell> shell = WaylandLayerShell::find();
  return shell ? std::make_unique<LayerShellWindowSystem>(std::move(shell)) : nullptr;
}

}  // namespace lanternix
