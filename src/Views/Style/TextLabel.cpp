#include "Views/Style/TextLabel.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>

namespace lanternix {

TextLabel::TextLabel(const QString &text, TextStyle style, QFont::Weight weight, FillStyle fill,
                     QWidget *parent)
    : QLabel(text, parent), m_style(style), m_weight(weight), m_fill(fill) {
  setTextFormat(Qt::PlainText);
  setFont(textFont(style, weight));
}

void TextLabel::changeEvent(QEvent *event) {
  if (event->type() == QEvent::ApplicationFontChange) {
    setFont(textFont(m_style, m_weight));
  }
  QLabel::changeEvent(event);
}

void TextLabel::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setPen(fillColor(m_fill, palette()));
  painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
}

}  // namespace lanternix
