#pragma once

#include <QtGui/QRegion>

namespace lanternix {

/// \p area without what lies outside its corners when they are rounded by \p radius: the shape of a
/// window whose corners cannot be blended. Radius and area in the same pixels.
QRegion roundedRegion(const QRect &area, int radius);

}  // namespace lanternix
