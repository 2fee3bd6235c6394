#include "Views/Style/TextLabel.h"

#include "Views/Style/DisplayText.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>

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

// Lines are broken between words, and within one only where it is wider than the label.
double TextLabel::layOut(QTextLayout &lines, double width) const {
  QTextOption option(alignment());
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  lines.setTextOption(option);
  double height = 0;
  lines.beginLayout();
  for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height});
    height += line.height();
  }
  lines.endLayout();
  return height;
}

int TextLabel::heightForWidth(int width) const {
  if (!wordWrap()) {
    return QLabel::heightForWidth(width);
  }
  const QMargins margins = contentsMargins();
  QTextLayout lines(text(), font());
  return qCeil(layOut(lines, width - margins.left() - margins.right())) + margins.top() +
         margins.bottom();
}

QSize TextLabel::minimumSizeHint() const {
  // A text that may be broken anywhere asks for no width.
  return wordWrap() ? QSize(0, fontMetrics().height()) : QLabel::minimumSizeHint();
}

void TextLabel::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setPen(fillColor(m_fill, palette()));
  if (wordWrap()) {
    QTextLayout lines(text(), font());
    layOut(lines, contentsRect().width());
    lines.draw(&painter, contentsRect().topLeft());
    return;
  }
  painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   DisplayText::elided(text(), font(), Qt::ElideRight, contentsRect().width()));
}

}  // namespace lanternix
