#pragma once

#include "support/Keyboard.h"
#include "support/XConnection.h"

#include <QtCore/QList>
#include <QtCore/QRect>

namespace lanternix {

/// A window of some other program, with a connection of its own. It does what a well-behaved
/// program does: names itself, notes the time of the user's last action on it, and keeps a record
/// of the keys and buttons that reached it.
class OtherClient {
 public:
  /// A dock is a desktop's panel: it stays where it is, gets no keyboard, and windows keep clear of
  /// it where it lies at the lower edge of the screen.
  enum class Shape { normal, fullScreen, dock };

  /// Makes the window without showing it.
  OtherClient(const QString &displayName, QRect geometry = {60, 60, 400, 300},
              Shape shape = Shape::normal);

  /// Shows the window and returns once it is on the screen.
  void show();
  /// Asks for the keyboard and returns once it has it.
  void takeFocus();

  xcb_window_t window() const { return m_window; }

  /// The key symbols (unshifted) whose presses reached the window, and a held combination's too.
  const QList<xcb_keysym_t> &keys();
  /// The buttons whose presses reached the window.
  const QList<quint8> &buttons();
  /// Whether the window has the keyboard, as it was told by the server.
  bool hasFocus();

  /// Takes a key combination for this program alone (\p modifiers of XCB_MOD_MASK_*). False when
  /// another program holds it.
  bool holdKey(xcb_keysym_t key, quint16 modifiers);
  void letKeyGo(xcb_keysym_t key, quint16 modifiers);

  /// Whether this program can take the whole keyboard for itself, which it gives back at once.
  bool canTakeKeyboard();

  /// Whether another program has taken a key combination, or every key for the time being, as a
  /// switcher of windows does while it is open. Asking gets in nobody's way.
  bool isKeyTaken(xcb_keysym_t key, quint16 modifiers);
  bool isKeyboardTaken() const;

 private:
  void becomeDock(const QRect &geometry);
  void readEvents();
  void noteUserTime(xcb_timestamp_t time);

  XConnection m_connection;
  Keyboard m_keyboard;
  xcb_window_t m_window;
  QList<xcb_keysym_t> m_keys;
  QList<quint8> m_buttons;
  bool m_mapped = false;
  bool m_focused = false;
};

}  // namespace lanternix
