#include "Views/Panel/PanelRowPainter.h"

#include "App/AppState.h"
#include "Views/Panel/PanelListModel.h"
#include "Views/Style/FillStyle.h"
#include "Views/Style/PixelGrid.h"

#include <QtGui/QPainter>
#include <QtGui/QPalette>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int dividerHeight = 1;
constexpr int dividerPadding = 6;
constexpr int dividerSidePadding = 16;

void paintDivider(QPainter &painter, const QPalette &palette, const QRectF &area) {
  const QRectF line =
      area.adjusted(dividerSidePadding, dividerPadding, -dividerSidePadding, -dividerPadding);
  painter.fillRect(PixelGrid::snappedLine(painter, line),
                   fillColor(FillStyle::quaternary, palette));
}

}  // namespace

PanelRowPainter::PanelRowPainter(const AppState &appState, const PanelListModel &model)
    : m_appState(appState),
      m_model(model),
      m_metrics(PanelMetrics::forSize(appState.panelItemSize())),
      m_itemRow(appState, m_metrics),
      m_groupSection(m_metrics),
      m_recentHeader(u"Recently Opened"_s, u"clock.fill"_s, SystemColor::orange) {}

void PanelRowPainter::updateMetrics() {
  m_metrics = PanelMetrics::forSize(m_appState.panelItemSize());
}

PanelListLayout::Heights PanelRowPainter::heights() const {
  return {
      .recentHeader = static_cast<int>(m_recentHeader.height()),
      .item = static_cast<int>(m_itemRow.height()),
      .divider = dividerHeight + 2 * dividerPadding,
      .groupHeader = static_cast<int>(m_groupSection.headerHeight()),
      .emptyGroup = static_cast<int>(m_groupSection.emptyHeight()),
  };
}

void PanelRowPainter::paint(QPainter &painter, const QPalette &palette, const QRectF &area,
                            qsizetype row, State state) const {
  const PathItem *item = m_model.itemAt(row);
  const PathGroup *group = m_model.groupAt(row);
  switch (m_model.rows()[row].kind) {
    case PanelRow::Kind::recentHeader:
      m_recentHeader.paint(painter, palette, area);
      break;
    case PanelRow::Kind::item:
      if (item != nullptr) {
        m_itemRow.paint(painter, palette, area, *item,
                        {.selected = state.selected, .hover = state.hover});
      }
      break;
    case PanelRow::Kind::divider:
      paintDivider(painter, palette, area);
      break;
    case PanelRow::Kind::groupHeader:
      if (group != nullptr) {
        m_groupSection.paintHeader(
            painter, palette, area, *group,
            {.count = std::ssize(m_appState.itemPositionsForGroup(group->id)),
             .openness = state.openness});
      }
      break;
    case PanelRow::Kind::emptyGroup:
      m_groupSection.paintEmpty(painter, palette, area);
      break;
  }
}

}  // namespace lanternix
