#pragma once

#include <QtWidgets/QScrollBar>

class QAbstractScrollArea;

namespace lanternix {

/// A vertical scroll bar that is nothing but its handle and lies over what it scrolls, so that the
/// content keeps its width. Hidden while everything is in sight. Draws without the pixmap cache,
/// whose clean-up would wake the program long after the panel is hidden.
class SlimScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  /// Takes the place of the bar of \p area, which owns it.
  explicit SlimScrollBar(QAbstractScrollArea *area);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void follow();

  QAbstractScrollArea &m_area;
};

}  // namespace lanternix
