#pragma once

#include <QtWidgets/QScrollBar>

namespace lanternix {

/// A scroll bar that is nothing but its handle. Draws without the pixmap cache, whose clean-up
/// would wake the program long after the panel is hidden.
class SlimScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  using QScrollBar::QScrollBar;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
};

}  // namespace lanternix
