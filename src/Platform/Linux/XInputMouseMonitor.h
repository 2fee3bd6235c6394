#pragma once

#include "Platform/GlobalMouseMonitor.h"
#include "Platform/Linux/X11Server.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QPoint>

#include <optional>

namespace lanternix {

class X11EventTime;

/// Hears every button press of the session as raw XInput 2 events, which reach us beside their
/// target and take nothing from it. They are asked for only while the monitor is active.
class XInputMouseMonitor : public GlobalMouseMonitor, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  XInputMouseMonitor(const X11Server &server, X11EventTime &eventTime);
  ~XInputMouseMonitor() override;

  void setActive(bool active) override;

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 Q_SIGNALS:
  /// Emitted from within the window system's event callback.
  void pressSeenOutside();

 private:
  void followPointer(const xcb_generic_event_t &event);
  void select(bool active);
  bool isWatchedPress(const xcb_generic_event_t &event) const;
  bool isPointerOverOwnWindow() const;
  bool takesPressAt(xcb_window_t window, QPoint position) const;
  xcb_window_t topLevelOf(xcb_window_t window) const;

  const X11Server &m_server;
  X11EventTime &m_eventTime;
  std::optional<quint8> m_opcode;  // of the extension; none before the first use
  bool m_active = false;
  xcb_window_t m_windowUnderPointer = XCB_WINDOW_NONE;  // of ours, as of the event handled last
};

}  // namespace lanternix
