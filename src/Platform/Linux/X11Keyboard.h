#pragma once

#include "Platform/KeyCodes.h"
#include "Platform/Linux/X11Server.h"

#include <optional>
#include <vector>

namespace lanternix {

/// The server's keyboard map at one moment.
class X11Keyboard {
 public:
  /// Reads the map in one round trip.
  explicit X11Keyboard(const X11Server &server);

  /// Every X key code on which \p key is found; empty when the keyboard has no such key.
  std::vector<xcb_keycode_t> keyCodes(const KeyCodes::Key &key) const;

  /// The modifier mask for modifiers in the classic encoding. None when the keyboard lacks one of
  /// them.
  std::optional<quint16> modifierMask(quint32 classicModifiers) const;

  /// The mask of Num Lock; 0 when the keyboard has none.
  quint16 numLockMask() const { return m_numLockMask; }

 private:
  quint32 symbol(std::size_t keyIndex, std::size_t column) const;
  bool hasSymbol(std::size_t keyIndex, quint32 symbol) const;
  template <typename Predicate>
  std::vector<xcb_keycode_t> keyCodesWhere(Predicate predicate) const;

  xcb_keycode_t m_firstKeyCode;
  std::size_t m_keyCount = 0;
  std::size_t m_columnCount = 0;
  std::vector<quint32> m_symbols;  // one row of columns for each key code
  quint16 m_superMask = 0;
  quint16 m_altMask = 0;
  quint16 m_numLockMask = 0;
};

}  // namespace lanternix
