#pragma once

#include "Views/Style/TextStyle.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <variant>

namespace lanternix {

/// A symbol by itself.
class SymbolLabel : public QWidget {
  Q_OBJECT

 public:
  /// Gives the symbol's colour on a palette; asked at every drawing, so that it follows changes of
  /// the desktop's appearance.
  using Tint = std::function<QColor(const QPalette &)>;

  /// \p side in logical pixels.
  SymbolLabel(QString symbol, double side, Tint tint, QWidget *parent = nullptr);
  /// As large as stands well beside text in \p size; follows changes of the user's font.
  SymbolLabel(QString symbol, TextStyle size, Tint tint, QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  double side() const;

  QString m_symbol;
  std::variant<double, TextStyle> m_size;
  Tint m_tint;
};

}  // namespace lanternix
