#pragma once

#include <QtGui/QIconEngine>

namespace lanternix {

/// Draws an icon anew each time, in whatever size and scale it is asked for. What is drawn is for
/// those to say who derive from it, in paint().
class PaintedIconEngine : public QIconEngine {
 public:
  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
};

}  // namespace lanternix
