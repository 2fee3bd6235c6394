#pragma once

#include "Views/Style/FillStyle.h"
#include "Views/Style/TextStyle.h"

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>

class QTextLayout;

namespace lanternix {

/// Text in a text style and a fill style. Never read as markup. Follows changes of the user's font
/// and of the desktop's appearance.
///
/// It is one line, which ends in an ellipsis where it does not fit; with word wrap it is as many as
/// it takes, broken within a word that is too long for one.
class TextLabel : public QLabel {
  Q_OBJECT

 public:
  TextLabel(const QString &text, TextStyle style, QFont::Weight weight, FillStyle fill,
            QWidget *parent = nullptr);

  bool eventFilter(QObject *watched, QEvent *event) override;
  bool hasHeightForWidth() const override { return wordWrap(); }
  int heightForWidth(int width) const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void updateFont();
  void watchParent();
  double layOut(QTextLayout &lines, double width) const;

  TextStyle m_style;
  QFont::Weight m_weight;
  FillStyle m_fill;
  QPointer<QWidget> m_watchedParent;
};

}  // namespace lanternix
