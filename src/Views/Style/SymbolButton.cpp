#include "Views/Style/SymbolButton.h"

#include "Views/Style/FocusRing.h"
#include "Views/Style/Symbol.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

#include <utility>

namespace lanternix {

SymbolButton::SymbolButton(QString symbol, TextStyle size, FillStyle fill, const QString &name,
                           QWidget *parent)
    : QAbstractButton(parent), m_symbol(std::move(symbol)), m_size(size), m_fill(fill) {
  setAccessibleName(name);
  setToolTip(name);
  setCursor(Qt::ArrowCursor);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

double SymbolButton::side() const {
  return Symbol::sideFor(textFont(m_size));
}

QSize SymbolButton::sizeHint() const {
  const int extent = qCeil(side()) + 2 * margin;
  return {extent, extent};
}

void SymbolButton::keyPressEvent(QKeyEvent *event) {
  // Whether Return presses a button is for each desktop to say, and most say no.
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isReturn) {
    QAbstractButton::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    click();
  }
}

void SymbolButton::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  constexpr double disabledOpacity = 0.5;
  painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
  const FillStyle fill = isDown() ? FillStyle::primary : m_fill;
  Symbol::draw(painter, rect(), m_symbol, side(), fillColor(fill, palette()));
  if (hasFocus()) {
    constexpr double radius = 4;
    constexpr double inset = FocusRing::width / 2;
    FocusRing::draw(painter, palette(), QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                    radius);
  }
}

}  // namespace lanternix
