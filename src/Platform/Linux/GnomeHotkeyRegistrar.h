#pragma once

#include "Platform/HotkeyRegistrar.h"

namespace lanternix {

/// The shortcut as one of GNOME's custom key bindings, beside those that the user has made. GNOME
/// starts a command at a press, which calls the action "toggle" of "org.freedesktop.Application" at
/// the program's name on the session bus: `pressed` is never emitted here.
///
/// The binding is seen in GNOME's own settings as "Lanternix". One that an earlier run has left,
/// because it could not end well, counts as this one's: GNOME would go on acting upon it.
class GnomeHotkeyRegistrar : public HotkeyRegistrar {
  Q_OBJECT

 public:
  /// Only where it is available.
  GnomeHotkeyRegistrar();
  ~GnomeHotkeyRegistrar() override;

  /// Whether this session is GNOME's, its settings are installed and so is "gdbus", which it calls
  /// the program by.
  static bool isAvailable();

  /// Refused also where one of GNOME's own bindings or of the user's has the combination: GNOME
  /// takes such a binding, and does nothing at a press.
  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override;
  void unregisterHotkey() override;

 private:
  void release();

  /// Whether our binding is among GNOME's.
  bool m_isRegistered;
};

}  // namespace lanternix
