#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

namespace lanternix {

/// What desktops that take a shortcut as text call a combination of a virtual key code and
/// modifiers in the classic encoding. Keys go by their name, unless something else is said; nothing
/// is said (an empty text) of a code that no key has.
namespace KeyNames {

/// As the desktop portal takes it: "SHIFT+LOGO+space".
QString portalTrigger(quint32 keyCode, quint32 classicModifiers);

/// As GNOME's settings hold it: "<Shift><Super>space". A character key, which goes by its position
/// whatever the layout, is told by its X key code, "<Super>0x2d"; the name follows as a second
/// text, which means the same to who has that layout.
QStringList gnomeAccelerators(quint32 keyCode, quint32 classicModifiers);

/// A combination as sway's commands take it.
struct SwayBinding {
  /// The command that binds it, "bindsym" or "bindcode"; with "un" before it the one that unbinds
  /// it.
  QString command;
  /// "Shift+Mod4+space" for a named key. A character key, which goes by its position whatever the
  /// layout, is told by its X key code: "Control+45".
  QString keys;

  friend bool operator==(const SwayBinding &, const SwayBinding &) = default;
};
/// Both texts are empty for a code that no key has.
SwayBinding swayBinding(quint32 keyCode, quint32 classicModifiers);

}  // namespace KeyNames

}  // namespace lanternix
