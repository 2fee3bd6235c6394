#include "demo/Demonstration.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <exception>

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2) {
    QTextStream(stderr) << "usage: lanternix-demo PICTURE.png" << Qt::endl;
    return 1;
  }
  try {
    lanternix::Demonstration().play(arguments.at(1));
  } catch (const std::exception &error) {
    QTextStream(stderr) << "This went wrong: " << error.what() << Qt::endl;
    return 1;
  }
  return 0;
}
