#include "Platform/Platform.h"
#include "Platform/SingleInstance.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

// A start of the program without anything but its claim to be the only one. Says "first" and waits
// to be asked to show, which it answers by "shown"; or says "second" and ends.
int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  QTextStream output(stdout);
  const auto instance = lanternix::makeSingleInstance();
  QObject::connect(instance.get(), &lanternix::SingleInstance::showRequested, &application,
                   [&output] { output << "shown" << Qt::endl; });
  const bool first = instance->claim();
  output << (first ? "first" : "second") << Qt::endl;
  return first ? QCoreApplication::exec() : 0;
}
