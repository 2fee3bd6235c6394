#pragma once

#include "Services/HotkeyShortcut.h"

#include <QtCore/QObject>

#include <functional>

namespace lanternix {

class HotkeyRegistrar;
class UserDefaults;

/// The global shortcut: loads it, registers it with the system, stores and registers it anew
/// whenever it is assigned, and calls `onToggle` once per press. No operation reports an error.
class HotkeyService : public QObject {
  Q_OBJECT

 public:
  /// Loads the stored shortcut, or the default when nothing valid is stored, and registers it.
  /// Writes nothing.
  HotkeyService(UserDefaults &userDefaults, HotkeyRegistrar &registrar, QObject *parent = nullptr);
  ~HotkeyService() override;

  /// The shortcut in force, also while its registration is refused.
  HotkeyShortcut currentShortcut() const { return m_currentShortcut; }

  /// Stores \p shortcut, releases the old registration, then registers the new one, also when both
  /// are equal. When the system refuses it, no hotkey is active until the next assignment, or
  /// until the system grants it later by itself.
  void setCurrentShortcut(const HotkeyShortcut &shortcut);

  /// Whether the system delivers presses of the current shortcut, as far as it has said. Where it
  /// asks the user first, this is true until it refuses.
  bool isRegistered() const { return m_registered; }

  /// While paused, the shortcut's keys go to the window with the keyboard like all others, and an
  /// assignment only stores. What holds then is registered at the end of the pause.
  void setPaused(bool paused);

  /// Called once per press, from the event loop and never inside the system's event callback.
  /// A press while it is empty has no effect.
  std::function<void()> onToggle;

 Q_SIGNALS:
  /// The value has changed.
  void currentShortcutChanged();

 private:
  void registerShortcut();
  void noteRegistration(bool registered);
  void toggle();

  UserDefaults &m_userDefaults;
  HotkeyRegistrar &m_registrar;
  HotkeyShortcut m_currentShortcut;
  bool m_registered = false;
  bool m_paused = false;
};

}  // namespace lanternix
