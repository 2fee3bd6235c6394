#pragma once

#include "Views/Style/FillStyle.h"
#include "Views/Style/TextStyle.h"

#include <QtCore/QList>

class QBoxLayout;
class QVBoxLayout;
class QWidget;

namespace lanternix {

class TextLabel;

/// Texts below one another.
namespace TextColumn {

/// Appends \p text to \p column, in its middle and in as many lines as it takes. The widget in
/// which \p column stands already owns it.
TextLabel *addCentered(QVBoxLayout &column, const QString &text, TextStyle style,
                       QFont::Weight weight, FillStyle fill);

/// Appends \p lines to \p row, close below one another. \p stretch is their share of what room the
/// row has left.
void addClose(QBoxLayout &row, const QList<QWidget *> &lines, int stretch = 0);

}  // namespace TextColumn

}  // namespace lanternix
