#pragma once

#include "support/XConnection.h"

#include <memory>
#include <xcb/xcb_keysyms.h>

namespace lanternix {

/// The keyboard map of a display as it was when this was made.
class Keyboard {
 public:
  /// A key, and whether its symbol needs Shift.
  struct Position {
    xcb_keycode_t code;
    bool shifted;
  };

  explicit Keyboard(const XConnection &connection);

  /// Where \p symbol is to be found. Throws when no key carries it.
  Position positionOf(xcb_keysym_t symbol) const;
  /// What the key means without Shift.
  xcb_keysym_t symbolOf(xcb_keycode_t code) const;

 private:
  struct SymbolsDeleter {
    void operator()(xcb_key_symbols_t *symbols) const noexcept { xcb_key_symbols_free(symbols); }
  };

  std::unique_ptr<xcb_key_symbols_t, SymbolsDeleter> m_symbols;
  int m_firstCode;
  int m_lastCode;
};

}  // namespace lanternix
