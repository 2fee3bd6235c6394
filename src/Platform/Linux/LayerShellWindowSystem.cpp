#include "Platform/Linux/LayerShellWindowSystem.h"

#include "Platform/Linux/WaylandWindowSystems.h"

#include <QtCore/QPointer>
#include <QtGui/QWindow>

#include <LayerShellQt/Window>

namespace lanternix {
namespace {

using LayerWindow = LayerShellQt::Window;

void setPosition(QWindow &window, QPoint position) {
  LayerWindow::get(&window)->setMargins({position.x(), position.y(), 0, 0});
}

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
  setPosition(window, window.position());
}

void LayerShellWindowSystem::setGeometry(QWindow &window, const QRect &geometry) {
  setPosition(window, geometry.topLeft());
  window.resize(geometry.size());
  // Until then the pointer is still told of from the old place.
  m_shell->afterAllSent([window = QPointer(&window), position = geometry.topLeft()] {
    if (window) {
      window->setPosition(position);
    }
  });
}

std::unique_ptr<WindowSystem> makeLayerShellWindowSystem() {
  std::unique_ptr<WaylandLayerShell> shell = WaylandLayerShell::find();
  return shell ? std::make_unique<LayerShellWindowSystem>(std::move(shell)) : nullptr;
}

}  // namespace lanternix
