#include "Platform/Linux/X11KeyboardHold.h"

#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(keyboardLog, "lanternix.keyboard", QtWarningMsg)

using namespace std::chrono_literals;

/// Long enough for the window manager of a busy machine, and no longer than a person would put up
/// with on a desktop that hangs.
constexpr auto longestHold = 1s;

}  // namespace

X11KeyboardHold::X11KeyboardHold(const X11Server &server) : m_server(server) {
  m_limit.setSingleShot(true);
  m_limit.setTimerType(Qt::PreciseTimer);
  m_limit.setInterval(longestHold);
  connect(&m_limit, &QTimer::timeout, this, &X11KeyboardHold::expire);
}

X11KeyboardHold::~X11KeyboardHold() {
  end();
}

void X11KeyboardHold::prepare() {
  if (m_guard) {
    return;
  }
  m_guard = std::make_unique<X11GrabGuard>(m_server);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &X11KeyboardHold::followFocus);
  qGuiApp->installNativeEventFilter(this);
}

void X11KeyboardHold::begin(xcb_timestamp_t time) {
  if (!m_guard || m_guard->window() == XCB_WINDOW_NONE || m_isHolding) {
    return;
  }
  m_isHolding = true;
  m_guard->start(longestHold);
  constexpr quint8 ownerEvents = 0;
  xcb_connection_t *connection = m_server.connection();
  // Refused when another program has taken the keyboard since the press, which is that one's right.
  const auto cookie = xcb_grab_keyboard(connection, ownerEvents, m_guard->window(), time,
                                        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
  xcb_discard_reply(connection, cookie.sequence);
  xcb_flush(connection);
  m_limit.start();
}

void X11KeyboardHold::passTo(QWindow &window) {
  if (m_isHolding) {
    m_receiver = &window;
  }
}

void X11KeyboardHold::endUnlessPassed() {
  if (!m_receiver) {
    end();
  }
}

void X11KeyboardHold::end() {
  if (!m_isHolding) {
    return;
  }
  qCDebug(keyboardLog) << "The keyboard was held for"
                       << (longestHold - m_limit.remainingTimeAsDuration()) / 1ms << "ms";
  m_isHolding = false;
  m_limit.stop();
  m_receiver = nullptr;
  xcb_ungrab_keyboard(m_server.connection(), XCB_CURRENT_TIME);
  m_guard->stop();
}

void X11KeyboardHold::expire() {
  qCDebug(keyboardLog) << "The panel has not got the keyboard in time: what was typed goes to the"
                       << "window that has it";
  end();
}

/// Input methods are told of the field with the focus by the same change: not before it are keys of
/// use.
void X11KeyboardHold::followFocus(const QWindow *focusWindow) {
  if (m_receiver && focusWindow == m_receiver) {
    end();
  }
}

/// A window that is shown again this soon after hiding has never lost the focus as Qt sees it, and
/// there is no change.
bool X11KeyboardHold::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                        qintptr * /*result*/) {
  constexpr int sentFlag = 0x80;
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  if (m_receiver && (event.response_type & ~sentFlag) == XCB_FOCUS_IN) {
    const auto &focus = reinterpret_cast<const xcb_focus_in_event_t &>(event);
    const bool isLasting =
        focus.mode == XCB_NOTIFY_MODE_NORMAL || focus.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
    if (isLasting && focus.event == m_receiver->winId()) {
      followFocus(QGuiApplication::focusWindow());
    }
  }
  return false;
}

}  // namespace lanternix
