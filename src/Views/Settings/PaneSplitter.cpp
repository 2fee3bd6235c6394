#include "Views/Settings/PaneSplitter.h"

#include "Views/Style/FillStyle.h"

#include <QtGui/QPainter>

namespace lanternix {

namespace {

/// The line. It is wider for the pointer than for the eye, which the toolkit sees to.
class Line : public QSplitterHandle {
 public:
  using QSplitterHandle::QSplitterHandle;

 protected:
  void paintEvent(QPaintEvent * /*event*/) override {
    QPainter(this).fillRect(contentsRect(), fillColor(FillStyle::quaternary, palette()));
  }
};

}  // namespace

PaneSplitter::PaneSplitter(QWidget *parent) : QSplitter(Qt::Horizontal, parent) {
  setHandleWidth(1);
  setChildrenCollapsible(false);
}

QSplitterHandle *PaneSplitter::createHandle() {
  return new Line(orientation(), this);  // which owns it
}

}  // namespace lanternix
