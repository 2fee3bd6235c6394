#pragma once

#include <QtWidgets/QWidget>

#include <functional>

namespace lanternix {

/// A symbol by itself, of a fixed size.
class SymbolLabel : public QWidget {
  Q_OBJECT

 public:
  /// Gives the symbol's colour on a palette; asked at every drawing, so that it follows changes of
  /// the desktop's appearance.
  using Tint = std::function<QColor(const QPalette &)>;

  /// \p side in logical pixels.
  SymbolLabel(QString symbol, double side, Tint tint, QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QString m_symbol;
  double m_side;
  Tint m_tint;
};

}  // namespace lanternix
