#include "Views/Style/FocusRing.h"

#include "Views/Style/SystemColors.h"

#include <QtGui/QPainter>

namespace lanternix::FocusRing {

void draw(QPainter &painter, const QPalette &palette, const QRectF &middle, double radius) {
  constexpr float opacity = 0.5F;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(withOpacity(accentColor(palette), opacity), width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(middle, radius, radius);
  painter.restore();
}

}  // namespace lanternix::FocusRing
