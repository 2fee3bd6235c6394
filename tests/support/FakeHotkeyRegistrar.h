#pragma once

#include "Platform/HotkeyRegistrar.h"

#include <optional>
#include <utility>

namespace lanternix {

/// A system whose combinations a test presses itself.
class FakeHotkeyRegistrar final : public HotkeyRegistrar {
 public:
  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override {
    ++registrations;
    registered.reset();
    if (!refuses) {
      registered = {keyCode, classicModifiers};
    }
    return registered.has_value();
  }

  void unregisterHotkey() override { registered.reset(); }

  /// Refuses what was registered, or grants what was refused, as a system does that asks the user.
  void changeRegistration(bool granted) { Q_EMIT registrationChanged(granted); }

  /// Presses the combination, if one is registered.
  void press() {
    if (registered.has_value()) {
      Q_EMIT pressed();
    }
  }

  /// Key code and modifiers of what is registered now.
  std::optional<std::pair<quint32, quint32>> registered;
  int registrations = 0;
  bool refuses = false;
};

}  // namespace lanternix
