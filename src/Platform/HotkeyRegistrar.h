#pragma once

#include <QtCore/QObject>

namespace lanternix {

/// One system-wide key combination, delivered whichever program is in front.
class HotkeyRegistrar : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Asks the system for the combination of a virtual key code and modifiers in the classic
  /// encoding, in place of any earlier one. False when the system refuses it (another program holds
  /// it, or no key of the keyboard has that code); nothing is registered then.
  virtual bool registerHotkey(quint32 keyCode, quint32 classicModifiers) = 0;

  /// Gives the combination back. Without one: nothing.
  virtual void unregisterHotkey() = 0;

 Q_SIGNALS:
  /// The combination was pressed. Once per press; a held key does not repeat.
  void pressed();
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
