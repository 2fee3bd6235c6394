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

/// The height of the rows below the header \p row, all unfolded.
int bodyHeight(const QList<PanelRow> &rows, qsizetype row,
               const PanelListLayout::Heights &heights) {
  int height = 0;
  for (++row; row < rows.size() && !rows[row].startsSection; ++row) {
    height += heightOf(rows[row].kind, heights);
  }
  return height;
}

}  // namespace

void PanelListLayout::layOut(const QList<PanelRow> &rows, const Heights &heights,
                             const Openness &openness) {
  m_spans.clear();
  m_spans.reserve(static_cast<size_t>(rows.size()));
  int y = static_cast<int>(PanelMetrics::listPadding);
  int clip = 0;  // the lower edge of the last section's first row
  for (qsizetype row = 0; row < rows.size(); ++row) {
    const bool startsSection = rows[row].startsSection;
    if (startsSection && !m_spans.empty()) {
      y = std::max(y, clip) + static_cast<int>(PanelMetrics::sectionSpacing);
    }
    const int bottom = y + heightOf(rows[row].kind, heights);
    clip = startsSection ? bottom : clip;
    m_spans.push_back(startsSection ? Span{y, bottom, y}
                                    : Span{std::max(y, clip), std::max(bottom, clip), y});
    y = bottom;
    if (const auto part = openness.constFind(row); part != openness.constEnd()) {
      y -= qRound((1 - *part) * bodyHeight(rows, row, heights));
    }
  }
  m_height = std::max(y, clip) + static_cast<int>(PanelMetrics::listPadding);
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
