#include "Platform/Linux/HotkeyRegistrarFactory.h"

#include "Platform/Linux/GnomeHotkeyRegistrar.h"
#include "Platform/Linux/PortalFirstHotkeyRegistrar.h"
#include "Platform/Linux/PortalHotkeyRegistrar.h"
#include "Platform/Linux/SessionBusAddress.h"
#include "Platform/Linux/SwayHotkeyRegistrar.h"
#include "Platform/Linux/X11HotkeyRegistrar.h"
#include "Platform/Linux/X11Server.h"

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

}  // namespace

std::unique_ptr<HotkeyRegistrar> makeHotkeyRegistrar(const X11Server &server,
                                                     X11EventTime &eventTime,
                                                     X11KeyboardHold &keyboardHold) {
  if (server.isXWayland()) {
    return makeWaylandHotkeyRegistrar();
  }
  return std::make_unique<X11HotkeyRegistrar>(server, eventTime, keyboardHold);
}

std::unique_ptr<HotkeyRegistrar> makeWaylandHotkeyRegistrar() {
  if (!isSessionBusAnnounced()) {
    return makeCompositorHotkeyRegistrar();
  }
  const auto bus =
      QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"lanternix-shortcuts"_s);
  if (!bus.isConnected()) {
    return makeCompositorHotkeyRegistrar();
  }
  return std::make_unique<PortalFirstHotkeyRegistrar>(std::make_unique<PortalHotkeyRegistrar>(bus),
                                                      makeCompositorHotkeyRegistrar());
}

}  // namespace lanternix
