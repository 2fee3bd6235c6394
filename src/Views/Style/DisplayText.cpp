#include "Views/Style/DisplayText.h"

#include <QtGui/QFontMetricsF>

#include <algorithm>

namespace lanternix::DisplayText {

namespace {

// More than any screen shows in a line; measuring a text takes time by its length.
constexpr qsizetype measuredLength = 1000;

bool disturbsLine(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    case QChar::Other_Format: {
      // Embeddings, overrides and isolates of the writing direction. Joiners stay: scripts and
      // emoji are made of them.
      const char16_t code = character.unicode();
      return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    }
    default:
      return false;
  }
}

/// \p text without its middle, or without its end, when it is longer than what is measured.
QString shortened(const QString &text, Qt::TextElideMode mode) {
  if (text.size() <= measuredLength) {
    return text;
  }
  return mode == Qt::ElideMiddle
             ? text.left(measuredLength / 2) + u'\u2026' + text.right(measuredLength / 2)
             : text.left(measuredLength);
}

}  // namespace

QString singleLine(const QString &text) {
  if (std::ranges::none_of(text, disturbsLine)) {
    return text;
  }
  QString line = text;
  std::ranges::replace_if(line, disturbsLine, u' ');
  return line;
}

QString elided(const QString &text, const QFont &font, Qt::TextElideMode mode, double width) {
  return QFontMetricsF(font).elidedText(singleLine(shortened(text, mode)), mode, width);
}

QString menuEntry(const QString &text, const QFont &font, Qt::TextElideMode mode, double width) {
  return elided(text, font, mode, width).replace(u'&', QStringLiteral("&&"));
}

}  // namespace lanternix::DisplayText
