#pragma once

#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/Linux/WaylandLayerShell.h"
#include "Platform/Linux/WaylandPointerTravel.h"

#include <QtCore/QPointer>
#include <QtGui/QWindow>

namespace lanternix {

/// Makes the panel a surface of the compositor's layer shell: above everything, in no list of
/// windows, with the keyboard, and where the program wants it, which Wayland grants to no ordinary
/// window. Its geometry counts from the corner of the work area; Qt itself keeps no positions.
class LayerShellWindowSystem : public QtWindowSystem {
  Q_OBJECT

 public:
  explicit LayerShellWindowSystem(std::unique_ptr<WaylandLayerShell> shell);

  /// Of the screen that the compositor would choose, which is where the panel goes.
  QRect workArea(const QScreen &screen) const override;
  void preparePanel(QWindow &window) override;
  void prepareHiding(QWindow &window) override;
  /// Takes a drag of which it would not hear how far it goes, and does nothing.
  bool takeDrag(QWindow &window, Qt::Edges edges, QPoint position) override;
  void setGeometry(QWindow &window, const QRect &geometry) override;
  QPoint pointerPosition(const QMouseEvent &event) const override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void closeOn(const QScreen *screen);

  const std::unique_ptr<WaylandLayerShell> m_shell;
  WaylandPointerTravel m_drag;
  QPointer<QWindow> m_panel;
  QPoint m_position;
  /// Where the mouse was pressed.
  QPoint m_pressed;
};

}  // namespace lanternix
