#include "Platform/Linux/LayerShellWindowSystem.h"

#include "Platform/Linux/SwayConnection.h"
#include "Platform/Linux/WaylandWindowSystemFactory.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>

#include <LayerShellQt/Window>

namespace lanternix {
namespace {

using LayerWindow = LayerShellQt::Window;

/// On demand, a surface of this layer gets the keyboard as it comes up, and lets go of it when
/// another window is pressed. Sway gives it back to the window that had it before, at once, unless
/// the surface wants it for as long as it is there.
LayerWindow::KeyboardInteractivity keyboardInteractivity() {
  // The variable alone may be left from an earlier session.
  static const bool isSway = SwayConnection(qEnvironmentVariable("SWAYSOCK")).isOpen();
  return isSway ? LayerWindow::KeyboardInteractivityExclusive
                : LayerWindow::KeyboardInteractivityOnDemand;
}

}  // namespace

LayerShellWindowSystem::LayerShellWindowSystem(std::unique_ptr<WaylandLayerShell> shell)
    : m_shell(std::move(shell)) {
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &LayerShellWindowSystem::closeOn);
}

QRect LayerShellWindowSystem::workArea(const QScreen &screen) const {
  const std::optional<QSize> size = m_shell->usableSize();
  return size ? QRect(QPoint(), *size) : QtWindowSystem::workArea(screen);
}

void LayerShellWindowSystem::preparePanel(QWindow &window) {
  LayerWindow *surface = LayerWindow::get(&window);
  m_panel = &window;
  surface->setLayer(LayerWindow::LayerOverlay);
  surface->setScope(QStringLiteral("lanternix"));
  surface->setKeyboardInteractivity(keyboardInteractivity());
  surface->setScreenConfiguration(LayerWindow::ScreenFromCompositor);
  surface->setAnchors({LayerWindow::AnchorLeft, LayerWindow::AnchorTop});
}

/// The surface goes with its screen, and not every compositor says so.
void LayerShellWindowSystem::closeOn(const QScreen *screen) {
  if (m_panel && m_panel->isVisible() && m_panel->screen() == screen) {
    m_panel->close();
  }
}

void LayerShellWindowSystem::prepareHiding(QWindow &window) {
  m_drag.stop();
  window.removeEventFilter(this);
  QtWindowSystem::prepareHiding(window);
}

bool LayerShellWindowSystem::takeDrag(QWindow &window, Qt::Edges /*edges*/, QPoint position) {
  m_pressed = m_position + position;
  const bool isFollowed = m_drag.start();
  if (isFollowed) {
    window.installEventFilter(this);
  }
  return !isFollowed;
}

/// At the end of a drag; until the next one, no motion of the mouse is of interest.
bool LayerShellWindowSystem::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::MouseButtonRelease &&
      static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton) {
    m_drag.stop();
    watched->removeEventFilter(this);
  }
  return false;
}

void LayerShellWindowSystem::setGeometry(QWindow &window, const QRect &geometry) {
  m_position = geometry.topLeft();
  LayerWindow::get(&window)->setMargins({m_position.x(), m_position.y(), 0, 0});
  window.resize(geometry.size());
}

QPoint LayerShellWindowSystem::pointerPosition(const QMouseEvent & /*event*/) const {
  return m_pressed + m_drag.travelled().toPoint();
}

std::unique_ptr<WindowSystem> makeLayerShellWindowSystem() {
  std::unique_ptr<WaylandLayerShell> shell = WaylandLayerShell::find();
  return shell ? std::make_unique<LayerShellWindowSystem>(std::move(shell)) : nullptr;
}

}  // namespace lanternix
