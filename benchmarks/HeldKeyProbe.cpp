#include "HeldKeyProbe.h"

#include "support/Keyboard.h"

namespace lanternix {

HeldKeyProbe::HeldKeyProbe(const QString &displayName, xcb_keysym_t key, quint16 modifiers)
    : m_connection(displayName),
      m_code(Keyboard(m_connection).positionOf(key).code),
      m_modifiers(modifiers) {}

bool HeldKeyProbe::isHeld() const {
  xcb_grab_server(m_connection);
  const xcb_void_cookie_t attempt =
      xcb_grab_key_checked(m_connection, 0, m_connection.root(), m_modifiers, m_code,
                           XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  xcb_ungrab_key(m_connection, m_code, m_connection.root(), m_modifiers);
  xcb_ungrab_server(m_connection);
  const XReply<xcb_generic_error_t> refusal(xcb_request_check(m_connection, attempt));
  return refusal != nullptr;
}

}  // namespace lanternix
