#pragma once

#include <QtCore/QString>

class QFont;

namespace lanternix {

/// Texts of the user's as they are drawn in one line.
namespace DisplayText {

/// \p text with a blank for each character that would break the line, move the pen or turn the
/// direction of what follows. Unchanged, and not copied, when it has none.
QString singleLine(const QString &text);

/// \p text cut to at most \p length code units, never within a surrogate pair: its beginning, or,
/// with Qt::ElideMiddle, its beginning and its end around an ellipsis.
QString shortened(const QString &text, qsizetype length, Qt::TextElideMode mode);

/// \p text in one line of at most \p width logical pixels, with an ellipsis where something had to
/// go. Takes the same time for a text of any length.
QString elided(const QString &text, const QFont &font, Qt::TextElideMode mode, double width);

/// The same as an entry of a menu, in which a single "&" would underline what follows it.
QString menuEntry(const QString &text, const QFont &font, Qt::TextElideMode mode, double width);

}  // namespace DisplayText

}  // namespace lanternix
