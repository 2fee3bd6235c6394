#pragma once

#include <QtCore/QObject>

namespace lanternix {

/// One system-wide key combination, delivered whichever program is in front.
///
/// Some systems answer at once, others ask the user first. registerHotkey() never waits for a
/// person: it tells what is known when it returns, and registrationChanged() tells when that has
/// changed.
class HotkeyRegistrar : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Asks the system for the combination of a virtual key code and modifiers in the classic
  /// encoding, in place of any earlier one. False when the system refuses it (another program holds
  /// it, or no key of the keyboard has that code); nothing is registered then. True when the system
  /// has granted it, or has been asked and has not refused so far.
  virtual bool registerHotkey(quint32 keyCode, quint32 classicModifiers) = 0;

  /// Gives the combination back, or the wish for it. Without one: nothing.
  virtual void unregisterHotkey() = 0;

 Q_SIGNALS:
  /// The combination was pressed. Once per press; a held key does not repeat. Where the system can
  /// only start a command at a press, that command calls the program over the session bus instead.
  void pressed();

  /// What registerHotkey() has returned for the present combination holds no longer: the system has
  /// refused it after all or taken it away (false), or grants it now (true). Never from within
  /// registerHotkey() or unregisterHotkey(), and never without a combination.
  void registrationChanged(bool registered);
};

/// Stands where the system has no global shortcuts: refuses every combination.
class NullHotkeyRegistrar : public HotkeyRegistrar {
  Q_OBJECT

 public:
  using HotkeyRegistrar::HotkeyRegistrar;
  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override;
  void unregisterHotkey() override;
};

}  // namespace lanternix
