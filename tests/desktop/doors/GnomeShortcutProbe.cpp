#include "Platform/Linux/GnomeHotkeyRegistrar.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

// Registers the shortcut of each line that comes in, a virtual key code and classic modifiers, and
// says what became of it; gives it back at the end of the input.
int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  QTextStream input(stdin);
  QTextStream output(stdout);
  if (!lanternix::GnomeHotkeyRegistrar::isAvailable()) {
    output << "missing" << Qt::endl;
    return 0;
  }
  output << "there" << Qt::endl;
  lanternix::GnomeHotkeyRegistrar registrar;
  for (QString line = input.readLine(); !line.isNull(); line = input.readLine()) {
    const QStringList words = line.split(u' ');
    const bool done = registrar.registerHotkey(words[0].toUInt(), words[1].toUInt());
    output << (done ? "registered" : "refused") << Qt::endl;
  }
  return 0;
}
