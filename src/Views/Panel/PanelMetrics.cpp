#include "Views/Panel/PanelMetrics.h"

#include "Views/Style/TextStyle.h"

namespace lanternix {

PanelMetrics PanelMetrics::forSize(PanelItemSize size) {
  switch (size) {
    case PanelItemSize::small:
      return {7,
              5,
              26,
              6,
              14,
              12,
              textFont(TextStyle::subheadline, QFont::Medium),
              textFont(TextStyle::caption2)};
    case PanelItemSize::medium:
      break;
    case PanelItemSize::large:
      return {15,
              12,
              40,
              10,
              26,
              19,
              textFont(TextStyle::title3, QFont::Medium),
              textFont(TextStyle::subheadline)};
  }
  return {
      11, 8, 32, 8, 20, 15, textFont(TextStyle::body, QFont::Medium), textFont(TextStyle::caption)};
}

}  // namespace lanternix
