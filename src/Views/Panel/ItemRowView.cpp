#include "Views/Panel/ItemRowView.h"

#include "App/AppState.h"
#include "Views/Panel/PanelMetrics.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/Symbol.h"
#include "Views/Style/SystemColors.h"
#include "Views/Style/TextStyle.h"
#include "Views/Style/ThemeIcon.h"

#include <QtCore/QDir>
#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

QColor groupColor(const AppState &appState, const PathItem &item, const QPalette &palette) {
  const auto &groups = appState.groups();
  const auto group = std::ranges::find(groups, item.groupId, &PathGroup::id);
  return group == groups.end() ? accentColor(palette) : systemColor(group->color(), palette);
}

void drawLine(QPainter &painter, const QRectF &area, const QFont &font, const QColor &color,
              const QString &text, Qt::TextElideMode elide) {
  painter.setFont(font);
  painter.setPen(color);
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   DisplayText::elided(text, font, elide, area.width()));
}

}  // namespace

ItemRowView::ItemRowView(const AppState &appState, const PanelMetrics &metrics)
    : m_appState(appState), m_metrics(metrics), m_iconHelper(appState.workspace()) {}

double ItemRowView::textHeight() const {
  const double name = QFontMetricsF(m_metrics.nameFont).height();
  if (!m_appState.showURLs()) {
    return name;
  }
  return name + PanelMetrics::textSpacing + QFontMetricsF(m_metrics.pathFont).height();
}

double ItemRowView::height() const {
  return std::ceil(std::max(m_metrics.tileSide, textHeight()) + 2 * m_metrics.rowPadding);
}

QString ItemRowView::displayPath(const PathItem &item) {
  const QString home = QDir::homePath();
  // A home of "/" would turn every slash into a tilde.
  if (item.type == ItemType::link || home.size() < 2) {
    return item.path;
  }
  return QString(item.path).replace(home, u"~"_s);
}

void ItemRowView::paint(QPainter &painter, const QPalette &palette, const QRectF &row,
                        const PathItem &item, State state) const {
  paintHighlight(painter, palette, row, state);

  QRectF tile(0, 0, m_metrics.tileSide, m_metrics.tileSide);
  tile.moveTopLeft({row.left() + PanelMetrics::sidePadding,
                    std::round(row.center().y() - m_metrics.tileSide / 2)});
  paintTile(painter, palette, tile, item);

  QRectF text = row;
  text.setLeft(tile.right() + PanelMetrics::rowSpacing);
  text.setRight(paintTrailing(painter, palette, row, item) - PanelMetrics::rowSpacing);
  paintText(painter, palette, text, item);
}

void ItemRowView::paintHighlight(QPainter &painter, const QPalette &palette, const QRectF &row,
                                 State state) const {
  constexpr double hoverOpacity = 0.08;
  if (!state.selected && state.hover <= 0) {
    return;
  }
  const auto hover = static_cast<float>(hoverOpacity * state.hover);
  painter.setPen(Qt::NoPen);
  painter.setBrush(state.selected ? selectionColor(palette)
                                  : withOpacity(accentColor(palette), hover));
  painter.drawRoundedRect(
      row.adjusted(PanelMetrics::highlightInset, 0, -PanelMetrics::highlightInset, 0),
      PanelMetrics::highlightRadius, PanelMetrics::highlightRadius);
}

void ItemRowView::paintTile(QPainter &painter, const QPalette &palette, const QRectF &tile,
                            const PathItem &item) const {
  const QColor color = groupColor(m_appState, item, palette);
  painter.setPen(Qt::NoPen);
  painter.setBrush(withOpacity(color, 0.12F));
  painter.drawRoundedRect(tile, m_metrics.tileRadius, m_metrics.tileRadius);
  const bool isImage = item.type == ItemType::directory || item.type == ItemType::file;
  const double side = isImage ? m_metrics.imageSide : m_metrics.symbolSide;
  const IconHelper::Icon icon = m_iconHelper.icon(item);
  if (!ThemeIcon::draw(painter, tile, icon.names, side)) {
    Symbol::draw(painter, tile, icon.symbol, side, color);
  }
}

void ItemRowView::paintText(QPainter &painter, const QPalette &palette, const QRectF &area,
                            const PathItem &item) const {
  const double nameHeight = QFontMetricsF(m_metrics.nameFont).height();
  QRectF line = area;
  line.setTop(area.center().y() - textHeight() / 2);
  line.setHeight(nameHeight);
  drawLine(painter, line, m_metrics.nameFont, fillColor(FillStyle::primary, palette), item.name,
           Qt::ElideRight);
  if (m_appState.showURLs()) {
    line.moveTop(line.bottom() + PanelMetrics::textSpacing);
    line.setHeight(QFontMetricsF(m_metrics.pathFont).height());
    // A path runs from left to right, in whatever script its parts are.
    painter.setLayoutDirection(Qt::LeftToRight);
    drawLine(painter, line, m_metrics.pathFont, fillColor(FillStyle::secondary, palette),
             displayPath(item), Qt::ElideMiddle);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
  }
}

double ItemRowView::paintTrailing(QPainter &painter, const QPalette &palette, const QRectF &row,
                                  const PathItem &item) const {
  const double side = Symbol::sideFor(textFont(TextStyle::caption));
  QRectF place(row.right() - PanelMetrics::sidePadding - side, row.top(), side, row.height());
  Symbol::draw(painter, place, u"arrow.right"_s, side, fillColor(FillStyle::quaternary, palette));
  if (!item.isValid()) {
    place.translate(-side - PanelMetrics::rowSpacing, 0);
    Symbol::draw(painter, place, u"exclamationmark.triangle.fill"_s, side,
                 systemColor(SystemColor::yellow, palette));
  }
  return place.left();
}

}  // namespace lanternix
