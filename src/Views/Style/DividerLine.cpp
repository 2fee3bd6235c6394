#include "Views/Style/DividerLine.h"

#include "Views/Style/FillStyle.h"
#include "Views/Style/PixelGrid.h"

#include <QtGui/QPainter>

namespace lanternix {

DividerLine::DividerLine(QWidget *parent) : QWidget(parent) {
  setFixedHeight(1);
}

void DividerLine::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.fillRect(PixelGrid::snappedLine(painter, contentsRect()),
                   fillColor(FillStyle::quaternary, palette()));
}

}  // namespace lanternix
