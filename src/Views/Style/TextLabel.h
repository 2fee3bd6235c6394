#pragma once

#include "Views/Style/FillStyle.h"
#include "Views/Style/TextStyle.h"

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>

namespace lanternix {

/// One line of text in a text style and a fill style. Never read as markup. Follows changes of the
/// user's font and of the desktop's appearance.
class TextLabel : public QLabel {
  Q_OBJECT

 public:
  TextLabel(const QString &text, TextStyle style, QFont::Weight weight, FillStyle fill,
            QWidget *parent = nullptr);

  bool eventFilter(QObject *watched, QEvent *event) override;

 protected:
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void updateFont();
  void watchParent();

  TextStyle m_style;
  QFont::Weight m_weight;
  FillStyle m_fill;
  QPointer<QWidget> m_watchedParent;
};

}  // namespace lanternix
