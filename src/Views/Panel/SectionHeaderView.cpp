#include "Views/Panel/SectionHeaderView.h"

#include "Views/Panel/PanelMetrics.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <cmath>
#include <utility>

namespace lanternix {

namespace {

constexpr double padding = 8;

QFont titleFont() {
  return textFont(TextStyle::subheadline, QFont::DemiBold);
}

}  // namespace

SectionHeaderView::SectionHeaderView(QString title, QString symbol, SystemColor color)
    : m_title(std::move(title)), m_symbol(std::move(symbol)), m_color(color) {}

double SectionHeaderView::height() const {
  return std::ceil(QFontMetricsF(titleFont()).height() + 2 * padding);
}

void SectionHeaderView::paint(QPainter &painter, const QPalette &palette, const QRectF &row) const {
  const double side = Symbol::sideFor(textFont(TextStyle::subheadline));
  QRectF area(row.left() + PanelMetrics::sidePadding, row.top(), side, row.height());
  Symbol::draw(painter, area, m_symbol, side, systemColor(m_color, palette));
  area.setLeft(area.right() + PanelMetrics::headerSpacing);
  area.setRight(row.right() - PanelMetrics::sidePadding);
  painter.setFont(titleFont());
  painter.setPen(fillColor(FillStyle::secondary, palette));
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, m_title);
}

}  // namespace lanternix
