#pragma once

#include "Platform/Linux/X11GrabGuard.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <memory>

class QWindow;

namespace lanternix {

/// Keeps back what is typed from a press of the shortcut until the window that answers it has the
/// keyboard, which the window manager gives it in its own time: else the first letters would go to
/// the window that had the keyboard before.
///
/// The keyboard is grabbed and frozen meanwhile: the server keeps its keys, and at the end deals
/// with them as if they were typed then. No hold lasts for more than a second, and its end does
/// not depend on this program (see X11GrabGuard).
class X11KeyboardHold : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  explicit X11KeyboardHold(const X11Server &server);
  /// Ends a hold.
  ~X11KeyboardHold() override;

  /// Makes ready for holds: nothing is held before. It asks the server, so do it ahead of time.
  void prepare();

  /// Begins a hold at a press of a key that is grabbed over Qt's connection, at that moment of the
  /// server's time. While there is one already: nothing.
  void begin(xcb_timestamp_t time);
  /// The window that the keys are meant for has been shown and is about to get the keyboard, with
  /// which the hold ends. Without a hold: nothing.
  void passTo(QWindow &window);
  /// Ends the hold unless passTo() has named a window. Without a hold: nothing.
  void endUnlessPassed();
  /// Ends the hold: what was typed goes to the window with the keyboard. Without a hold: nothing.
  void end();

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 private:
  void expire();
  void followFocus(const QWindow *focusWindow);

  const X11Server &m_server;
  std::unique_ptr<X11GrabGuard> m_guard;
  bool m_isHolding = false;
  QTimer m_limit;
  QPointer<QWindow> m_receiver;
};

}  // namespace lanternix
