#pragma once

#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/Linux/WaylandLayerShell.h"

namespace lanternix {

/// Makes the panel a surface of the compositor's layer shell: above everything, in no list of
/// windows, with the keyboard, and where the program wants it, which Wayland grants to no ordinary
/// window. Its geometry counts from the corner of the work area.
class LayerShellWindowSystem : public QtWindowSystem {
  Q_OBJECT

 public:
  explicit LayerShellWindowSystem(std::unique_ptr<WaylandLayerShell> shell);

  QRect workArea() const override;
  void preparePanel(QWindow &window) override;
  void setGeometry(QWindow &window, const QRect &geometry) override;
  QPoint pointerPosition(const QWindow &window, const QMouseEvent &event) const override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void notePlacing();

  const std::unique_ptr<WaylandLayerShell> m_shell;
  /// Where the panel is to be, and where the compositor has it as far as the events tell that have
  /// been heard of: it places the panel with a picture, and Qt keeps no positions.
  QPoint m_wanted;
  QPoint m_position;
};

}  // namespace lanternix
