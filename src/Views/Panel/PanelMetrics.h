#pragma once

#include "Models/PanelItemSize.h"

#include <QtGui/QFont>

namespace lanternix {

/// The measures of the panel's rows at one density, in logical pixels.
struct PanelMetrics {
  double headerPadding;
  double rowPadding;
  double tileSide;
  double tileRadius;
  double imageSide;
  double symbolSide;
  QFont nameFont;
  QFont pathFont;

  static PanelMetrics forSize(PanelItemSize size);

  // The same at every density.
  static constexpr double sidePadding = 20;
  static constexpr double listPadding = 10;    // above the first row and below the last
  static constexpr double sectionSpacing = 4;  // between the sections of the list
  static constexpr double rowSpacing = 12;     // between the parts of an item's row
  static constexpr double headerSpacing = 8;   // between the parts of a group's header
  static constexpr double textSpacing = 2;     // between an item's name and its path
  static constexpr double highlightInset = 8;
  static constexpr double highlightRadius = 8;
};

}  // namespace lanternix
