#pragma once

#include "Platform/Linux/PortalHotkeyRegistrar.h"
#include "desktop/doors/PortalHotkeyTest.h"

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

  /// What the portal has been asked for, once it has answered all of it.
  const QStringList &callsBefore(const QString &lastCall) {
    require(QStringLiteral("the call ") + lastCall,
            [&] { return portal->calls().contains(lastCall); });
    return portal->calls();
  }

  std::unique_ptr<PortalHotkeyRegistrar> registrar;
};

}  // namespace lanternix
