#pragma once

#include "Models/SystemColor.h"

#include <QtCore/QString>

class QPainter;
class QPalette;
class QRectF;

namespace lanternix {

/// The heading of a section of the panel's list that is no group: a symbol and a title. Stateless.
class SectionHeaderView {
 public:
  SectionHeaderView(QString title, QString symbol, SystemColor color);

  /// In logical pixels.
  double height() const;
  void paint(QPainter &painter, const QPalette &palette, const QRectF &row) const;

 private:
  QString m_title;
  QString m_symbol;
  SystemColor m_color;
};

}  // namespace lanternix
