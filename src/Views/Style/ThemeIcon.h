#pragma once

#include <QtCore/QStringList>
#include <QtGui/QImage>

class QPainter;
class QRectF;

namespace lanternix {

/// Pictures from the desktop's icon theme.
namespace ThemeIcon {

/// The first of \p names that the present theme has, or the image that one of them is the path of,
/// in a square of \p side logical pixels; null when there is none. Pictures are kept, so that only
/// the first drawing of an icon reads it from the disk.
QImage image(const QStringList &names, double side, double devicePixelRatio);

/// Draws it centred in \p area; false when there is none.
bool draw(QPainter &painter, const QRectF &area, const QStringList &names, double side);

}  // namespace ThemeIcon

}  // namespace lanternix
