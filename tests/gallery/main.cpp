// Draws every picture at scale 1 and at scale 2 into the directory that is named.
#include "Views/Style/LanternixStyle.h"
#include "gallery/PanelGallery.h"
#include "gallery/SettingsGallery.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTextStream>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

#include <exception>

namespace {

using namespace Qt::StringLiterals;

constexpr auto scaleVariable = "QT_SCALE_FACTOR";

/// A scale is settled when a program starts, so each has a process of its own.
int drawAtEveryScale(const QStringList &arguments) {
  for (const char *scale : {"1", "2"}) {
    qputenv(scaleVariable, scale);
    const int status = QProcess::execute(arguments.front(), arguments.mid(1));
    if (status != 0) {
      return status;
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  using namespace lanternix;
  if (argc != 2) {
    QTextStream(stderr) << "usage: lanternix-gallery DIRECTORY" << Qt::endl;
    return 2;
  }
  if (!qEnvironmentVariableIsSet(scaleVariable)) {
    const QCoreApplication application(argc, argv);
    return drawAtEveryScale(QCoreApplication::arguments());
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(new LanternixStyle);  // owned by the application
  const QApplication application(argc, argv);
  // Without a screen Qt looks for no icon theme.
  QIcon::setThemeSearchPaths(QStandardPaths::locateAll(
      QStandardPaths::GenericDataLocation, u"icons"_s, QStandardPaths::LocateDirectory));
  QIcon::setThemeName(u"Adwaita"_s);
  const QString directory = QCoreApplication::arguments().at(1);
  QDir().mkpath(directory);
  try {
    const int count = PanelGallery(directory).draw() + SettingsGallery(directory).draw();
    QTextStream(stdout) << count << " pictures in " << directory << Qt::endl;
  } catch (const std::exception &error) {
    QTextStream(stderr) << error.what() << Qt::endl;
    return 1;
  }
  return 0;
}
