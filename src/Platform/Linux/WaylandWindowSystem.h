#pragma once

#include "Platform/Linux/QtWindowSystem.h"

#include <QtCore/QPointer>
#include <QtCore/QSize>

namespace lanternix {

/// Ordinary windows of a Wayland compositor, which places, moves and resizes them itself and gives
/// the keyboard to whom it likes.
class WaylandWindowSystem : public QtWindowSystem {
  Q_OBJECT

 public:
  /// Lets \p window float where windows are tiled.
  void preparePanel(QWindow &window) override;
  bool takeDrag(QWindow &window, Qt::Edges edges, QPoint position) override;

 private:
  void fixSize(QWindow &window);
  void releaseSize();

  /// The window that can have but one size for the moment, and the sizes it may have else.
  QPointer<QWindow> m_fixed;
  QSize m_smallest;
  QSize m_largest;
};

}  // namespace lanternix
