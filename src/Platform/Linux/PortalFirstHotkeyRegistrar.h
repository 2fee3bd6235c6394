#pragma once

#include "Platform/HotkeyRegistrar.h"

#include <memory>
#include <optional>

namespace lanternix {

class PortalHotkeyRegistrar;

/// The desktop portal's shortcuts where the portal has any, else those of another door. Which of
/// them it is, is known only when the portal has answered; what has been asked for until then moves
/// to the other door by itself, and so does what a portal had that ends for good. That one keeps it
/// when a portal comes late, unless it has refused.
class PortalFirstHotkeyRegistrar : public HotkeyRegistrar {
  Q_OBJECT

 public:
  PortalFirstHotkeyRegistrar(std::unique_ptr<PortalHotkeyRegistrar> portal,
                             std::unique_ptr<HotkeyRegistrar> otherwise);
  ~PortalFirstHotkeyRegistrar() override;

  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override;
  void unregisterHotkey() override;

 private:
  struct Hotkey {
    quint32 keyCode;
    quint32 classicModifiers;
  };

  void listenTo(HotkeyRegistrar &door);
  void followOffer();
  bool registerAt(HotkeyRegistrar &door);
  void tell(bool registered);

  std::unique_ptr<PortalHotkeyRegistrar> m_portal;
  std::unique_ptr<HotkeyRegistrar> m_otherwise;
  HotkeyRegistrar *m_door;
  std::optional<Hotkey> m_wanted;
  /// What the caller knows of the wish.
  bool m_isToldRegistered = false;
};

}  // namespace lanternix
