#pragma once

#include <QtWidgets/QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSpinBox;

namespace lanternix {

/// How text fields, combo boxes and spin boxes look: the ground of text within a hairline, round at
/// the corners, with a ring of the accent colour while the keyboard is there. All are as high as a
/// push button in the same font.
namespace FieldDrawing {

/// Ground, line and ring; the text comes from the widget.
void drawField(QPainter &painter, const QStyleOption &option);
/// The same, with the chevron at its end.
void drawComboBox(QPainter &painter, const QStyleOptionComboBox &option);
/// The same, with a chevron for each step at its end, faint where there is no further step.
void drawSpinBox(QPainter &painter, const QStyleOptionSpinBox &option);

/// Where the text of a text field goes, on a field that takes \p field.
QRect textArea(const QRect &field);
/// The text's place or the chevron's; the whole for every other part.
QRect partOf(const QStyleOptionComboBox &option, QStyle::SubControl part);
/// The text's place or that of a step; the whole for every other part.
QRect partOf(const QStyleOptionSpinBox &option, QStyle::SubControl part);

/// \p textWidth is what the text alone needs.
QSize fieldSize(const QStyleOption &option, int textWidth);
/// The same for a field that has chevrons at its end.
QSize steppedSize(const QStyleOption &option, int textWidth);

}  // namespace FieldDrawing

}  // namespace lanternix
