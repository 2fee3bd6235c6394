#pragma once

#include "Platform/HotkeyRegistrar.h"
#include "Platform/KeyCodes.h"
#include "desktop/doors/ShortcutsPortal.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace lanternix {

/// A bus on which a portal may come and go, and a record of what a registrar tells.
class PortalHotkeyTest : public testing::Test {
 protected:
  static constexpr quint32 superShift = KeyCodes::classicCommand | KeyCodes::classicShift;
  static constexpr quint32 keyK = 40;

  void startPortal() { startPortal({}); }
  void startPortal(ShortcutsPortal::Nature nature) {
    portal = std::make_unique<ShortcutsPortal>(bus.address(), nature);
  }

  /// A connection that nobody else uses.
  QDBusConnection freshConnection() const {
    static int count = 0;
    return QDBusConnection::connectToBus(bus.address(),
                                         QStringLiteral("registrar-%1").arg(++count));
  }

  void listenTo(HotkeyRegistrar &registrar) {
    QObject::connect(&registrar, &HotkeyRegistrar::pressed, [this] { ++presses; });
    QObject::connect(&registrar, &HotkeyRegistrar::registrationChanged,
                     [this](bool registered) { told.push_back(registered); });
  }

  bool becomesBound(const QString &trigger) const {
    return waitUntil([&] { return portal->triggers() == QStringList{trigger}; });
  }
  bool becomesTold(const std::vector<bool> &expected) const {
    return waitUntil([&] { return told == expected; });
  }
  bool becomesPressed(int times) const {
    return waitUntil([&] { return presses == times; });
  }

  SessionBus bus;
  std::unique_ptr<ShortcutsPortal> portal;
  int presses = 0;
  std::vector<bool> told;
};

}  // namespace lanternix
