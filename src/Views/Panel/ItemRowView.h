#pragma once

#include "Utilities/IconHelper.h"

#include <QtCore/QString>

class QPainter;
class QPalette;
class QRectF;

namespace lanternix {

class AppState;
struct PanelMetrics;
struct PathItem;

/// The row of one item in the panel's list: a tile with its icon, its name, its path, a warning
/// when it is broken. Stateless; the list draws every row with it.
class ItemRowView {
 public:
  struct State {
    bool selected = false;
    /// How far the pointer's highlight has faded in, 0 to 1.
    double hover = 0;
  };

  ItemRowView(const AppState &appState, const PanelMetrics &metrics);

  /// Height of every item's row, in logical pixels.
  double height() const;

  /// Draws the row of \p item into \p row. Asks the file system whether the item is valid.
  void paint(QPainter &painter, const QPalette &palette, const QRectF &row, const PathItem &item,
             State state) const;

  /// The path as people read it: the home directory is "~" wherever it occurs, but for links, which
  /// stand as they are.
  static QString displayPath(const PathItem &item);

 private:
  void paintHighlight(QPainter &painter, const QPalette &palette, const QRectF &row,
                      State state) const;
  void paintTile(QPainter &painter, const QPalette &palette, const QRectF &tile,
                 const PathItem &item) const;
  void paintText(QPainter &painter, const QPalette &palette, const QRectF &area,
                 const PathItem &item) const;
  /// Draws the symbols at the row's end; returns where they begin.
  double paintTrailing(QPainter &painter, const QPalette &palette, const QRectF &row,
                       const PathItem &item) const;
  double textHeight() const;

  const AppState &m_appState;
  const PanelMetrics &m_metrics;
  IconHelper m_iconHelper;
};

}  // namespace lanternix
