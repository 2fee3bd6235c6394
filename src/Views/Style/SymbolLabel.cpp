#include "Views/Style/SymbolLabel.h"

#include "Views/Style/Symbol.h"

#include <QtGui/QPainter>

#include <utility>

namespace lanternix {

SymbolLabel::SymbolLabel(QString symbol, double side, Tint tint, QWidget *parent)
    : QWidget(parent), m_symbol(std::move(symbol)), m_side(side), m_tint(std::move(tint)) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SymbolLabel::sizeHint() const {
  return {qCeil(m_side), qCeil(m_side)};
}

void SymbolLabel::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  Symbol::draw(painter, rect(), m_symbol, m_side, m_tint(palette()));
}

}  // namespace lanternix
