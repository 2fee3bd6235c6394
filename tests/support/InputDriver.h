#pragma once

#include "support/Keyboard.h"
#include "support/XConnection.h"

#include <QtCore/QList>
#include <QtCore/QPoint>

#include <memory>

namespace lanternix {

class WindowManager;

/// The hands at the keyboard and the mouse: events that no program can tell from a person's. Every
/// call returns once the server has taken the event; what is still held at the end is released.
///
/// Keys are named by their X key symbols, such as XK_Escape or XK_comma.
class InputDriver {
 public:
  /// Each press of a button waits until \p manager, if any, has dealt with it. A window manager
  /// that takes every press first and then hands it on makes the server lose the clicks of a hand
  /// that is quicker than any person's.
  explicit InputDriver(const QString &displayName, const WindowManager *manager = nullptr);
  ~InputDriver();
  Q_DISABLE_COPY_MOVE(InputDriver)

  void press(xcb_keysym_t key);
  /// As press(), but returns as soon as the request is on its way: for who takes the time.
  void pressAndFlush(xcb_keysym_t key);
  void release(xcb_keysym_t key);
  /// Presses and releases \p key while \p modifiers are held.
  void tap(xcb_keysym_t key, const QList<xcb_keysym_t> &modifiers = {});
  /// Types \p text, of characters that the keyboard has, with Shift where they need it.
  void type(const QString &text);

  void moveTo(QPoint position);
  void pressButton(quint8 button = 1);
  void releaseButton(quint8 button = 1);
  void click(QPoint position, quint8 button = 1);
  /// Moves with the button held, by steps as a hand does.
  void drag(QPoint from, QPoint to, quint8 button = 1);

  /// Reads the keyboard map anew, after somebody changed it.
  void refreshKeyboard();

 private:
  void send(quint8 eventType, quint8 detail, QPoint position = {});
  void sendAndFlush(quint8 eventType, quint8 detail, QPoint position);

  XConnection m_connection;
  const WindowManager *m_manager;
  std::unique_ptr<Keyboard> m_keyboard;
  QList<xcb_keycode_t> m_heldKeys;
  QList<quint8> m_heldButtons;
};

}  // namespace lanternix
