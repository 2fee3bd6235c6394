#pragma once

#include <QtGui/QColor>

namespace lanternix {

/// How well the eye tells things apart, by the formula of the Web Content Accessibility Guidelines.
namespace Contrast {

/// What text has to have against its ground, to be read by nearly everyone.
inline constexpr double ofText = 4.5;

/// What is seen where \p color, opaque or not, is laid on the opaque \p ground.
QColor laidOn(const QColor &ground, const QColor &color);

/// From 1 (alike) to 21 (black and white). \p ground is opaque; \p text need not be.
double ratio(const QColor &text, const QColor &ground);

/// \p color itself where it has the contrast \p wanted on \p ground; else the same hue, darkened on
/// a light ground and lightened on a dark one just until it has.
QColor readableOn(const QColor &ground, const QColor &color, double wanted = ofText);

}  // namespace Contrast

}  // namespace lanternix
