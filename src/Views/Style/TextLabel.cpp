#include "Views/Style/TextLabel.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>

namespace lanternix {

TextLabel::TextLabel(const QString &text, TextStyle style, QFont::Weight weight, FillStyle fill,
                     QWidget *parent)
    : QLabel(text, parent), m_style(style), m_weight(weight), m_fill(fill) {
  setTextFormat(Qt::PlainText);
  updateFont();
  watchParent();
}

void TextLabel::updateFont() {
  setFont(textFont(m_style, m_weight));
}

// A widget with a size of text of its own is not told of another size of the user's font; its
// parent, which has none, is.
void TextLabel::watchParent() {
  if (m_watchedParent != nullptr) {
    m_watchedParent->removeEventFilter(this);
  }
  m_watchedParent = parentWidget();
  if (m_watchedParent != nullptr) {
    m_watchedParent->installEventFilter(this);
  }
}

bool TextLabel::eventFilter(QObject * /*watched*/, QEvent *event) {
  if (event->type() == QEvent::FontChange) {
    updateFont();
  }
  return false;
}

void TextLabel::changeEvent(QEvent *event) {
  if (event->type() == QEvent::ApplicationFontChange) {
    updateFont();
  } else if (event->type() == QEvent::ParentChange) {
    watchParent();
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
