#include "Views/Panel/PanelListLayout.h"

#include "Views/Panel/PanelMetrics.h"

#include <algorithm>

namespace lanternix {

namespace {

int heightOf(PanelRow::Kind kind, const PanelListLayout::Heights &heights) {
  switch (kind) {
    case PanelRow::Kind::recentHeader:
      return heights.recentHeader;
    case PanelRow::Kind::item:
      return heights.item;
    case PanelRow::Kind::divider:
      return heights.divider;
    case PanelRow::Kind::groupHeader:
      return heights.groupHeader;
    case PanelRow::Kind::emptyGroup:
      return heights.emptyGroup;
  }
  return 0;
}

}  // namespace

void PanelListLayout::layOut(const QList<PanelRow> &rows, const Heights &heights) {
  m_spans.clear();
  m_spans.reserve(static_cast<size_t>(rows.size()));
  int y = static_cast<int>(PanelMetrics::listPadding);
  for (const PanelRow &row : rows) {
    if (row.startsSection && !m_spans.empty()) {
      y += static_cast<int>(PanelMetrics::sectionSpacing);
    }
    const int bottom = y + heightOf(row.kind, heights);
    m_spans.push_back({y, bottom});
    y = bottom;
  }
  m_height = y + static_cast<int>(PanelMetrics::listPadding);
}

qsizetype PanelListLayout::firstRowBelow(int y) const {
  const auto span = std::ranges::upper_bound(m_spans, y, {}, &Span::bottom);
  return span - m_spans.begin();
}

qsizetype PanelListLayout::rowAt(int y) const {
  const qsizetype row = firstRowBelow(y);
  return row < std::ssize(m_spans) && top(row) <= y ? row : -1;
}

}  // namespace lanternix
