#include "Platform/HotkeyRegistrar.h"
#include "Platform/KeyCodes.h"
#include "Platform/Linux/HotkeyRegistrarFactory.h"
#include "Platform/Linux/PortalAppearance.h"
#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/Linux/SessionBusAddress.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTextStream>

#include <memory>
#include <unistd.h>

// Registers Super+Shift+K at the door that a Wayland session's surroundings lead to, says which
// door that is and what it answers, then and later, and holds the shortcut until the input ends.
int main(int argc, char **argv) {
  using namespace lanternix;
  const QCoreApplication application(argc, argv);
  // As the program does before, on the connection that it has for everything.
  const auto appearance =
      hasSessionBus() ? std::make_unique<PortalAppearance>(QDBusConnection::sessionBus()) : nullptr;
  QtWindowSystem windowSystem;
  const auto registrar = makeWaylandHotkeyRegistrar(windowSystem, connectForShortcuts());
  QTextStream output(stdout);
  QObject::connect(registrar.get(), &HotkeyRegistrar::registrationChanged, [&](bool isRegistered) {
    output << (isRegistered ? "registered later" : "refused later") << Qt::endl;
  });
  constexpr quint32 keyK = 40;
  const bool isRegistered =
      registrar->registerHotkey(keyK, KeyCodes::classicCommand | KeyCodes::classicShift);
  output << registrar->metaObject()->className() << (isRegistered ? " registers" : " refuses")
         << Qt::endl;
  const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
  const int result = QCoreApplication::exec();
  registrar->unregisterHotkey();
  return result;
}
