#pragma once

#include <QtCore/QString>

class QColor;
class QFont;
class QImage;
class QPainter;
class QRectF;

namespace lanternix {

/// The program's own line drawings, named as the data names them and tinted as they are drawn. A
/// name without a drawing draws the plain folder.
namespace Symbol {

/// The symbol \p name in a square of \p side logical pixels, sharp at \p devicePixelRatio.
QImage image(const QString &name, double side, const QColor &color, double devicePixelRatio);

/// Draws the symbol centred in \p area, as large as a square of \p side logical pixels.
void draw(QPainter &painter, const QRectF &area, const QString &name, double side,
          const QColor &color);

/// The side at which a symbol stands well beside text in \p font.
double sideFor(const QFont &font);

}  // namespace Symbol

}  // namespace lanternix
