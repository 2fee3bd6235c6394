#pragma once

#include "Platform/Linux/PortalHotkeyRegistrar.h"
#include "desktop/doors/PortalHotkeyTest.h"
#include "support/ProgramEnvironment.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusReply>

namespace lanternix {

/// A registrar over a portal that may come and go.
class PortalHotkeyRegistrarTest : public PortalHotkeyTest {
 protected:
  using Offer = PortalHotkeyRegistrar::Offer;

  void startProgram(std::chrono::milliseconds wait = std::chrono::minutes(1)) {
    registrar = std::make_unique<PortalHotkeyRegistrar>(freshConnection(), wait);
    listenTo(*registrar);
  }

  bool registerDefault() { return registrar->registerHotkey(KeyCodes::space, superShift); }

  bool becomesOffered(Offer offer) const {
    return waitUntil([&] { return registrar->offer() == offer; });
  }

  /// What the bus starts takes its time; the test takes the name in its stead.
  void letTheBusStartPortals(const QByteArray &command, const QDBusConnection &connection) const {
    ProgramEnvironment::write(
        bus.serviceDirectory() + QStringLiteral("/portal.service"),
        "[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=" + command + '\n');
    require(QStringLiteral("a portal that can be started"), [&] {
      return connection.interface()->activatableServiceNames().value().contains(
          QStringLiteral("org.freedesktop.portal.Desktop"));
    });
  }

  /// Ends the portal, and waits until the bus has been made to start another one.
  void letPortalBeStartedAnew() {
    const QTemporaryDir directory;
    const QString sign = directory.filePath(QStringLiteral("started"));
    letTheBusStartPortals("/bin/sh -c 'touch " + sign.toUtf8() + "; sleep 20'", freshConnection());
    portal.reset();
    require(QStringLiteral("the portal's start"), [&] { return QFile::exists(sign); });
    EXPECT_EQ(registrar->offer(), Offer::unknown);
    startPortal();
  }

  /// What the portal has been asked for, once it has answered all of it.
  const QStringList &callsBefore(const QString &lastCall) {
    require(QStringLiteral("the call ") + lastCall,
            [&] { return portal->calls().contains(lastCall); });
    return portal->calls();
  }

  std::unique_ptr<PortalHotkeyRegistrar> registrar;
};

}  // namespace lanternix
