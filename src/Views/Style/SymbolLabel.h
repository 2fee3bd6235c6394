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

  /// Either a side in logical pixels, or the style of the text that the symbol goes with; then it
  /// follows changes of the user's font.
  using Size = std::variant<double, TextStyle>;

  SymbolLabel(QString symbol, Size size, Tint tint, QWidget *parent = nullptr);

  void setSymbol(const QString &symbol, const Tint &tint);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  double side() const;

  QString m_symbol;
  Size m_size;
  Tint m_tint;
};

}  // namespace lanternix
