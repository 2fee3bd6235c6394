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

QStringView beginning(QStringView text, qsizetype length) {
  const QStringView cut = text.first(length);
  return !cut.isEmpty() && cut.back().isHighSurrogate() ? cut.chopped(1) : cut;
}

QStringView end(QStringView text, qsizetype length) {
  const QStringView cut = text.last(length);
  return !cut.isEmpty() && cut.front().isLowSurrogate() ? cut.sliced(1) : cut;
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

QString shortened(const QString &text, qsizetype length, Qt::TextElideMode mode) {
  if (text.size() <= length) {
    return text;
  }
  if (mode != Qt::ElideMiddle) {
    return beginning(text, length).toString();
  }
  const qsizetype room = length - 1;
  return beginning(text, room / 2).toString() + u'\u2026' + end(text, room / 2).toString();
}

QString elided(const QString &text, const QFont &font, Qt::TextElideMode mode, double width) {
  return QFontMetricsF(font).elidedText(singleLine(shortened(text, measuredLength, mode)), mode,
                                        width);
}

QString menuEntry(const QString &text, const QFont &font, Qt::TextElideMode mode, double width) {
  return elided(text, font, mode, width).replace(u'&', QStringLiteral("&&"));
}

}  // namespace lanternix::DisplayText
