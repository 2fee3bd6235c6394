#include "support/Keyboard.h"

#include "support/HarnessError.h"

namespace lanternix {

using namespace Qt::StringLiterals;

Keyboard::Keyboard(const XConnection &connection)
    : m_symbols(xcb_key_symbols_alloc(connection)),
      m_firstCode(xcb_get_setup(connection)->min_keycode),
      m_lastCode(xcb_get_setup(connection)->max_keycode) {}

Keyboard::Position Keyboard::positionOf(xcb_keysym_t symbol) const {
  for (const int column : {0, 1}) {
    for (int number = m_firstCode; number <= m_lastCode; ++number) {
      const auto code = static_cast<xcb_keycode_t>(number);
      if (xcb_key_symbols_get_keysym(m_symbols.get(), code, column) == symbol) {
        return {code, column == 1};
      }
    }
  }
  throw HarnessError(u"no key of the keyboard carries the symbol 0x%1"_s.arg(symbol, 0, 16));
}

xcb_keysym_t Keyboard::symbolOf(xcb_keycode_t code) const {
  return xcb_key_symbols_get_keysym(m_symbols.get(), code, 0);
}

}  // namespace lanternix
