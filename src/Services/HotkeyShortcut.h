#pragma once

#include "Platform/KeyCodes.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace lanternix {

/// A key with modifiers, as the stored shortcut holds it. A plain value.
struct HotkeyShortcut {
  /// Modifier bits of `modifiers`; all others are ignored.
  enum Modifier : quint32 {
    shift = 1U << 17U,
    control = 1U << 18U,
    option = 1U << 19U,
    command = 1U << 20U,
    allModifiers = shift | control | option | command,
  };

  /// The same modifiers in the classic encoding, which the registration of a hotkey takes.
  using enum KeyCodes::ClassicModifier;

  /// Virtual key code: a position on the keyboard, not a character. 49 is the space bar.
  quint32 keyCode = 49;
  quint32 modifiers = command | shift;

  /// The modifiers in the classic encoding.
  quint32 carbonModifiers() const;

  /// The text shown to people, such as "⌃⌥⌘K": the modifiers in fixed order, then the key's name.
  /// A key without a name adds nothing.
  QString displayString() const;

  /// The stored form: a compact JSON object with the keys "keyCode" and "modifiers".
  QByteArray encoded() const;

  /// The shortcut in \p bytes; none unless both keys hold unsigned 32-bit integers.
  static std::optional<HotkeyShortcut> decoded(const QByteArray &bytes);

  friend bool operator==(const HotkeyShortcut &, const HotkeyShortcut &) = default;
};

}  // namespace lanternix
