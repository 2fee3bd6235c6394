#include "Views/Style/TextLabel.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

namespace lanternix {

TextLabel::TextLabel(const QString &text, TextStyle style, QFont::Weight weight, FillStyle fill,
                     QWidget *parent)
    : QLabel(text, parent), m_style(style), m_weight(weight), m_fill(fill) {
  setTextFormat(Qt::PlainText);
}

// Not set as the widget's own font: a widget that has one hears nothing of changes of the user's.
QFont TextLabel::lineFont() const {
  return textFont(m_style, m_weight);
}

QSize TextLabel::sizeHint() const {
  const QFontMetricsF metrics(lineFont());
  return {qCeil(metrics.horizontalAdvance(text())), qCeil(metrics.height())};
}

QSize TextLabel::minimumSizeHint() const {
  return sizeHint();
}

void TextLabel::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setFont(lineFont());
  painter.setPen(fillColor(m_fill, palette()));
  painter.drawText(
      contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
      QFontMetricsF(lineFont()).elidedText(text(), Qt::ElideRight, contentsRect().width()));
}

}  // namespace lanternix
