#include "Platform/Linux/HotkeyRegistrarFactory.h"

#include "Platform/ActivationToken.h"
#include "Platform/Linux/GnomeHotkeyRegistrar.h"
#include "Platform/Linux/PortalFirstHotkeyRegistrar.h"
#include "Platform/Linux/PortalHotkeyRegistrar.h"
#include "Platform/Linux/SessionBusAddress.h"
#include "Platform/Linux/SwayHotkeyRegistrar.h"
#include "Platform/Linux/X11HotkeyRegistrar.h"
#include "Platform/Linux/X11Server.h"
#include "Platform/WindowSystem.h"

#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// What there is beside the portal. All of it can be told without waiting.
std::unique_ptr<HotkeyRegistrar> makeCompositorHotkeyRegistrar() {
  auto sway = std::make_unique<SwayHotkeyRegistrar>(qEnvironmentVariable("SWAYSOCK"));
  if (sway->isAvailable()) {
    return sway;
  }
  if (GnomeHotkeyRegistrar::isAvailable()) {
    return std::make_unique<GnomeHotkeyRegistrar>();
  }
  return std::make_unique<NullHotkeyRegistrar>();
}

/// Null without a session bus.
std::unique_ptr<PortalHotkeyRegistrar> makePortalHotkeyRegistrar(const QDBusConnection &bus) {
  return bus.isConnected() ? std::make_unique<PortalHotkeyRegistrar>(bus) : nullptr;
}

std::unique_ptr<HotkeyRegistrar> withOtherDoor(std::unique_ptr<PortalHotkeyRegistrar> portal) {
  auto otherwise = makeCompositorHotkeyRegistrar();
  if (!portal) {
    return otherwise;
  }
  return std::make_unique<PortalFirstHotkeyRegistrar>(std::move(portal), std::move(otherwise));
}

}  // namespace

QDBusConnection connectForShortcuts() {
  const QString name = u"lanternix-shortcuts"_s;
  return isSessionBusAnnounced() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                                 : QDBusConnection(name);
}

std::unique_ptr<HotkeyRegistrar> makeHotkeyRegistrar(const X11Server &server,
                                                     X11EventTime &eventTime,
                                                     X11KeyboardHold &keyboardHold) {
  if (server.isXWayland()) {
    return withOtherDoor(makePortalHotkeyRegistrar(connectForShortcuts()));
  }
  return std::make_unique<X11HotkeyRegistrar>(server, eventTime, keyboardHold);
}

std::unique_ptr<HotkeyRegistrar> makeWaylandHotkeyRegistrar(WindowSystem &windowSystem,
                                                            const QDBusConnection &bus) {
  auto portal = makePortalHotkeyRegistrar(bus);
  if (portal) {
    QObject::connect(portal.get(), &PortalHotkeyRegistrar::tokenReceived, &windowSystem,
                     [&windowSystem](const QString &token) {
                       windowSystem.noteRequest({.token = token, .startupId = {}});
                     });
  }
  return withOtherDoor(std::move(portal));
}

}  // namespace lanternix
