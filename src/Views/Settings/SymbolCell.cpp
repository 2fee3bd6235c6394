#include "Views/Settings/SymbolCell.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QPainter>

#include <utility>

namespace lanternix {

namespace {

constexpr QSize cellSize{32, 32};
constexpr double radius = 6;
constexpr double lineWidth = 1.5;
constexpr float selectionOpacity = 0.2F;

}  // namespace

SymbolCell::SymbolCell(QString symbol, const QString &name, QWidget *parent)
    : ChoiceCell(cellSize, name, parent), m_symbol(std::move(symbol)) {}

void SymbolCell::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isChecked()) {
    const QColor accent = accentColor(palette());
    painter.setPen(Qt::NoPen);
    painter.setBrush(withOpacity(accent, selectionOpacity));
    painter.drawRoundedRect(rect(), radius, radius);
    painter.setPen(QPen(accent, lineWidth));
    painter.setBrush(Qt::NoBrush);
    constexpr double inset = lineWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
  }
  Symbol::draw(painter, rect(), m_symbol, Symbol::sideFor(textFont(TextStyle::body)),
               fillColor(FillStyle::primary, palette()));
}

}  // namespace lanternix
