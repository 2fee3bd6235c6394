#include "Views/Style/SymbolLabel.h"

#include "Views/Style/Symbol.h"

#include <QtGui/QPainter>

#include <utility>

namespace lanternix {

SymbolLabel::SymbolLabel(QString symbol, Size size, Tint tint, QWidget *parent)
    : QWidget(parent), m_symbol(std::move(symbol)), m_size(size), m_tint(std::move(tint)) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolLabel::setSymbol(const QString &symbol, const Tint &tint) {
  m_symbol = symbol;
  m_tint = tint;
  update();
}

double SymbolLabel::side() const {
  const auto *style = std::get_if<TextStyle>(&m_size);
  return style != nullptr ? Symbol::sideFor(textFont(*style)) : std::get<double>(m_size);
}

QSize SymbolLabel::sizeHint() const {
  const int extent = qCeil(side());
  return {extent, extent};
}

void SymbolLabel::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  Symbol::draw(painter, rect(), m_symbol, side(), m_tint(palette()));
}

}  // namespace lanternix
