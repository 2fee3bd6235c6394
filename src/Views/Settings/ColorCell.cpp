#include "Views/Settings/ColorCell.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QPainter>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr QSize cellSize{24, 24};
constexpr double ringInset = 1;
constexpr double ringWidth = 2;

}  // namespace

ColorCell::ColorCell(SystemColor color, const QString &name, QWidget *parent)
    : ChoiceCell(cellSize, name, parent), m_color(color) {}

void ColorCell::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.setPen(Qt::NoPen);
  painter.setBrush(systemColor(m_color, palette()));
  painter.drawEllipse(rect());
  if (!isChecked()) {
    return;
  }
  painter.setPen(QPen(fillColor(FillStyle::primary, palette()), ringWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QRectF(rect()).adjusted(ringInset, ringInset, -ringInset, -ringInset));
  // Twice, a little apart: that makes a line drawing bold.
  const double side = Symbol::sideFor(textFont(TextStyle::caption2, QFont::Bold));
  constexpr double boldness = 0.5;
  for (const double shift : {-boldness / 2, boldness / 2}) {
    painter.save();
    painter.translate(0, shift);
    Symbol::draw(painter, rect(), u"checkmark"_s, side, Qt::white);
    painter.restore();
  }
}

}  // namespace lanternix
