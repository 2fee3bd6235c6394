#pragma once

#include "Platform/HotkeyRegistrar.h"
#include "Platform/Linux/X11Server.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QTimer>

#include <optional>
#include <vector>

namespace lanternix {

class X11EventTime;
class X11Keyboard;
class X11KeyboardHold;

/// Holds the shortcut by key grabs on every root window, one for each state of Caps Lock and Num
/// Lock, and moves them along when the keyboard map changes. With each press, a hold of the
/// keyboard begins.
class X11HotkeyRegistrar : public HotkeyRegistrar, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  X11HotkeyRegistrar(const X11Server &server, X11EventTime &eventTime,
                     X11KeyboardHold &keyboardHold);
  ~X11HotkeyRegistrar() override;

  bool registerHotkey(quint32 keyCode, quint32 classicModifiers) override;
  void unregisterHotkey() override;

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 private:
  struct Hotkey {
    quint32 keyCode;
    quint32 classicModifiers;
  };
  struct Grab {
    xcb_window_t root;
    xcb_keycode_t keyCode;
    quint16 modifiers;

    friend bool operator==(const Grab &, const Grab &) = default;
  };

  std::vector<Grab> grabsFor(const Hotkey &hotkey, const X11Keyboard &keyboard) const;
  bool hold(std::vector<Grab> grabs);
  void release();
  void followKeyboard();
  bool isKeyboardChange(const xcb_generic_event_t &event) const;
  bool isOurs(const xcb_key_press_event_t &event) const;
  void handlePress(const xcb_key_press_event_t &event);

  const X11Server &m_server;
  X11EventTime &m_eventTime;
  X11KeyboardHold &m_keyboardHold;
  xcb_query_extension_cookie_t m_xkbCookie;
  std::optional<quint8> m_xkbEvent;  // none until the answer has been read; 0 without XKB
  std::optional<Hotkey> m_wanted;
  std::vector<Grab> m_grabs;
  QTimer m_following;  // runs from a change of the keyboard to the next turn of the event loop
  xcb_keycode_t m_releasedKey = 0;
  xcb_timestamp_t m_releaseTime = 0;
  xcb_timestamp_t m_pressTime = 0;
};

}  // namespace lanternix
