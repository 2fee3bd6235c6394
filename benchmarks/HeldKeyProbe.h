#pragma once

#include "support/XConnection.h"

#include <X11/keysym.h>

namespace lanternix {

/// Tells from outside whether some program holds a key combination.
class HeldKeyProbe {
 public:
  /// \p modifiers of XCB_MOD_MASK_*.
  HeldKeyProbe(const QString &displayName, xcb_keysym_t key, quint16 modifiers);

  /// Tries to take the combination and gives it back at once. The server serves nobody else
  /// meanwhile, so the attempt never gets in the way of the program that is waited for.
  bool isHeld() const;

 private:
  XConnection m_connection;
  xcb_keycode_t m_code;
  quint16 m_modifiers;
};

}  // namespace lanternix
