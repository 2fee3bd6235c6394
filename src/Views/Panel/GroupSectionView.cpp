#include "Views/Panel/GroupSectionView.h"

#include "Models/PathGroup.h"
#include "Views/Panel/PanelMetrics.h"
#include "Views/Style/Contrast.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr double chevronWidth = 14;
constexpr double countSidePadding = 8;
constexpr double countPadding = 3;
constexpr double emptySidePadding = 24;
constexpr double emptyPadding = 8;

QFont nameFont() {
  return textFont(TextStyle::body, QFont::DemiBold);
}

QFont countFont() {
  return textFont(TextStyle::caption, QFont::Medium);
}

double countHeight() {
  return QFontMetricsF(countFont()).height() + 2 * countPadding;
}

/// Turns from right to down while the group unfolds.
void paintChevron(QPainter &painter, const QPalette &palette, const QRectF &area, double openness) {
  const double side = Symbol::sideFor(textFont(TextStyle::caption));
  const QColor color = fillColor(FillStyle::tertiary, palette);
  if (openness <= 0 || openness >= 1) {
    Symbol::draw(painter, area, openness >= 1 ? u"chevron.down"_s : u"chevron.right"_s, side,
                 color);
    return;
  }
  constexpr double quarterTurn = 90;
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(area.center());
  painter.rotate(quarterTurn * openness);
  Symbol::draw(painter, QRectF(-side / 2, -side / 2, side, side), u"chevron.right"_s, side, color);
  painter.restore();
}

}  // namespace

GroupSectionView::GroupSectionView(const PanelMetrics &metrics) : m_metrics(metrics) {}

double GroupSectionView::headerHeight() const {
  return std::ceil(std::max(QFontMetricsF(nameFont()).height(), countHeight()) +
                   2 * m_metrics.headerPadding);
}

double GroupSectionView::emptyHeight() const {
  return std::ceil(QFontMetricsF(textFont(TextStyle::subheadline)).height() + 2 * emptyPadding);
}

void GroupSectionView::paintHeader(QPainter &painter, const QPalette &palette, const QRectF &row,
                                   const PathGroup &group, State state) const {
  double left = row.left() + PanelMetrics::sidePadding;
  const auto column = [&](double width) {
    const QRectF area(left, row.top(), width, row.height());
    left += width + PanelMetrics::headerSpacing;
    return area;
  };

  paintChevron(painter, palette, column(chevronWidth), state.openness);

  const double symbolSide = Symbol::sideFor(textFont(TextStyle::body));
  Symbol::draw(painter, column(symbolSide), group.iconName, symbolSide,
               systemColor(group.color(), palette));

  const QFontMetricsF nameMetrics(nameFont());
  const double countWidth =
      QFontMetricsF(countFont()).horizontalAdvance(QString::number(state.count)) +
      2 * countSidePadding;
  const double room =
      row.right() - PanelMetrics::sidePadding - left - countWidth - PanelMetrics::headerSpacing;
  const QString name = DisplayText::elided(group.name, nameFont(), Qt::ElideRight, room);
  painter.setFont(nameFont());
  painter.setPen(fillColor(FillStyle::primary, palette));
  painter.drawText(column(std::ceil(nameMetrics.horizontalAdvance(name))),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);

  paintCount(painter, palette, row, left, state.count);
}

void GroupSectionView::paintCount(QPainter &painter, const QPalette &palette, const QRectF &row,
                                  double left, qsizetype count) const {
  const QString text = QString::number(count);
  const double width = QFontMetricsF(countFont()).horizontalAdvance(text) + 2 * countSidePadding;
  const QRectF capsule(left, row.center().y() - countHeight() / 2, width, countHeight());
  painter.setPen(Qt::NoPen);
  const QColor fill = fillColor(FillStyle::quaternary, palette);
  painter.setBrush(fill);
  painter.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);
  painter.setFont(countFont());
  painter.setPen(fillColor(FillStyle::secondary, palette,
                           Contrast::laidOn(palette.color(QPalette::Window), fill)));
  painter.drawText(capsule, Qt::AlignCenter, text);
}

void GroupSectionView::paintEmpty(QPainter &painter, const QPalette &palette,
                                  const QRectF &row) const {
  QFont font = textFont(TextStyle::subheadline);
  font.setItalic(true);
  painter.setFont(font);
  painter.setPen(fillColor(FillStyle::tertiary, palette));
  painter.drawText(row.adjusted(emptySidePadding, 0, -emptySidePadding, 0),
                   Qt::AlignLeft | Qt::AlignVCenter, u"No items in this group"_s);
}

}  // namespace lanternix
