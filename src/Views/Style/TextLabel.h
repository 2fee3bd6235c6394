#pragma once

#include "Views/Style/FillStyle.h"
#include "Views/Style/TextStyle.h"

#include <QtWidgets/QLabel>

namespace lanternix {

/// One line of text in a text style and a fill style. Never read as markup. Follows changes of the
/// user's font and of the desktop's appearance.
class TextLabel : public QLabel {
  Q_OBJECT

 public:
  TextLabel(const QString &text, TextStyle style, QFont::Weight weight, FillStyle fill,
            QWidget *parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QFont lineFont() const;

  TextStyle m_style;
  QFont::Weight m_weight;
  FillStyle m_fill;
};

}  // namespace lanternix
