#include "Platform/Linux/PortalFirstHotkeyRegistrar.h"

#include "Platform/Linux/PortalHotkeyRegistrar.h"

#include <utility>

namespace lanternix {

using Offer = PortalHotkeyRegistrar::Offer;

PortalFirstHotkeyRegistrar::PortalFirstHotkeyRegistrar(
    std::unique_ptr<PortalHotkeyRegistrar> portal, std::unique_ptr<HotkeyRegistrar> otherwise)
    : m_portal(std::move(portal)), m_otherwise(std::move(otherwise)), m_door(m_portal.get()) {
  listenTo(*m_portal);
  listenTo(*m_otherwise);
  connect(m_portal.get(), &PortalHotkeyRegistrar::offerChanged, this,
          &PortalFirstHotkeyRegistrar::followOffer);
}

PortalFirstHotkeyRegistrar::~PortalFirstHotkeyRegistrar() = default;

void PortalFirstHotkeyRegistrar::listenTo(HotkeyRegistrar &door) {
  connect(&door, &HotkeyRegistrar::pressed, this, &HotkeyRegistrar::pressed);
  connect(&door, &HotkeyRegistrar::registrationChanged, this, &PortalFirstHotkeyRegistrar::tell);
}

bool PortalFirstHotkeyRegistrar::registerHotkey(quint32 keyCode, quint32 classicModifiers) {
  m_wanted = Hotkey{keyCode, classicModifiers};
  if (m_portal->offer() == Offer::missing) {
    m_door = m_otherwise.get();
  }
  m_isToldRegistered = registerAt(*m_door);
  if (!m_isToldRegistered && m_door != m_portal.get() && m_portal->offer() == Offer::there) {
    m_door = m_portal.get();
    m_isToldRegistered = registerAt(*m_door);
  }
  return m_isToldRegistered;
}

void PortalFirstHotkeyRegistrar::unregisterHotkey() {
  m_wanted.reset();
  m_door->unregisterHotkey();
}

void PortalFirstHotkeyRegistrar::followOffer() {
  const Offer offer = m_portal->offer();
  if (offer == Offer::unknown) {
    return;  // the wish waits for the answer where it is
  }
  const bool isHeldOtherwise = m_door == m_otherwise.get() && m_isToldRegistered;
  HotkeyRegistrar *door =
      offer == Offer::missing || isHeldOtherwise ? m_otherwise.get() : m_portal.get();
  if (door != m_door && m_wanted) {
    m_door->unregisterHotkey();
    m_door = door;
    tell(registerAt(*m_door));
  }
  if (m_door == m_portal.get() && offer == Offer::there) {
    m_otherwise->unregisterHotkey();  // an earlier run may have left something there
  }
}

bool PortalFirstHotkeyRegistrar::registerAt(HotkeyRegistrar &door) {
  return door.registerHotkey(m_wanted->keyCode, m_wanted->classicModifiers);
}

void PortalFirstHotkeyRegistrar::tell(bool registered) {
  if (std::exchange(m_isToldRegistered, registered) != registered) {
    Q_EMIT registrationChanged(registered);
  }
}

}  // namespace lanternix
