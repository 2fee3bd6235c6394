#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

// Draws an icon of one size for those who read no drawings:
//   render-icon <drawing.svg> <side in pixels> <picture.png>
int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const int side = arguments.value(2).toInt();
  QSvgRenderer drawing(arguments.value(1));
  QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
  if (drawing.isValid() && !picture.isNull()) {
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (picture.convertToFormat(QImage::Format_ARGB32).save(arguments.value(3))) {
      return 0;
    }
  }
  QTextStream(stderr) << "render-icon: no picture of " << arguments.value(1) << Qt::endl;
  return 1;
}
