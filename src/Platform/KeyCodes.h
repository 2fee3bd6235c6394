#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QtGlobal>

#include <optional>
#include <span>

namespace lanternix {

/// The one table between virtual key codes, which shortcuts are stored with, evdev codes, which are
/// positions on the keyboard, and X key symbols, which are meanings.
namespace KeyCodes {

/// Virtual key codes that the program itself asks for.
enum VirtualKey : quint32 {
  returnKey = 36,
  comma = 43,
  space = 49,
  escape = 53,
  downArrow = 125,
  upArrow = 126,
};

/// Modifiers in the classic encoding, which the registration of a hotkey takes.
enum ClassicModifier : quint32 {
  classicCommand = 0x100,
  classicShift = 0x200,
  classicOption = 0x800,
  classicControl = 0x1000,
};

/// How a key is found on the present keyboard.
struct Key {
  quint32 virtualCode;
  /// Position: the evdev code.
  quint32 evdevCode;
  /// The key symbol of a named key (Escape, Return, arrows ...), which is followed wherever the
  /// user has put it; 0 for a character key, which goes by its position whatever the layout.
  quint32 keySymbol;
  /// The name of its symbol on a keyboard with the layout of the United States, such as
  /// "bracketleft", which the keyboard libraries of all desktops share.
  QLatin1StringView name;
};

/// An X key code is an evdev code plus this.
constexpr quint32 firstXKeyCode = 8;

/// Every key of the table.
std::span<const Key> allKeys();

/// The key with this virtual code; none for a code that no key has.
std::optional<Key> keyForVirtualCode(quint32 virtualCode);

/// The virtual code of a key press: by its symbol when that is a named key's, else by its position.
/// \p nativeScanCode is the X key code, \p keySymbol the X key symbol. None for unknown keys and
/// for a position whose named key the user has put elsewhere.
std::optional<quint32> virtualCodeForPress(quint32 nativeScanCode, quint32 keySymbol);

/// Whether a key that means \p keySymbol, an X key symbol, acts only on other keys: Shift, Control,
/// Caps Lock, the level and group switches of layouts. On some layouts those stand where others
/// have characters.
bool isModifier(quint32 keySymbol);

}  // namespace KeyCodes

}  // namespace lanternix
