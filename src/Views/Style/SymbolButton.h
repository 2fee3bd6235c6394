#pragma once

#include "Views/Style/FillStyle.h"
#include "Views/Style/TextStyle.h"

#include <QtWidgets/QAbstractButton>

namespace lanternix {

/// A button that is nothing but a symbol, as large as text of a given style. Space and Return press
/// it.
class SymbolButton : public QAbstractButton {
  Q_OBJECT

 public:
  /// Room around the symbol, for the ring of the focus. Layouts that align the symbol itself leave
  /// so much less beside the button.
  static constexpr int margin = 2;

  /// \p name is the button's accessible name and its tooltip.
  SymbolButton(QString symbol, TextStyle size, FillStyle fill, const QString &name,
               QWidget *parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  double side() const;

  QString m_symbol;
  TextStyle m_size;
  FillStyle m_fill;
};

}  // namespace lanternix
