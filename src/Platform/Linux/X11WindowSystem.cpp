#include "Platform/Linux/X11WindowSystem.h"

#include "Platform/ActivationToken.h"
#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/X11KeyboardHold.h"

#include <QtCore/QDeadlineTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

#include <algorithm>

namespace lanternix {
namespace {

constexpr quint32 sourcePager = 2;  // an action of the user, not a wish of the program
constexpr quint32 everyDesktop = 0xFFFFFFFF;
constexpr quint8 bitsPerItem = 32;

xcb_window_t nativeWindow(const QWindow &window) {
  return static_cast<xcb_window_t>(window.winId());
}

/// A screen's rectangle in the server's pixels. Qt scales a screen's size, but not its place.
QRect nativeGeometry(const QScreen &screen) {
  const QSizeF size = QSizeF(screen.geometry().size()) * screen.devicePixelRatio();
  return {screen.geometry().topLeft(), size.toSize()};
}

/// Asks the server until \p condition holds. The window manager gets there within a few questions;
/// one that hangs is not waited for any longer than a person would notice. False when it does not.
template <typename Condition>
bool comesTrue(Condition condition) {
  using namespace std::chrono_literals;
  const QDeadlineTimer deadline(50ms);
  while (!condition()) {
    if (deadline.hasExpired()) {
      return false;
    }
  }
  return true;
}

}  // namespace

X11WindowSystem::X11WindowSystem(const X11Server &server, X11EventTime &eventTime,
                                 X11KeyboardHold &keyboardHold)
    : m_server(server),
      m_eventTime(eventTime),
      m_keyboardHold(keyboardHold),
      m_atoms(server),
      m_compositor(server, m_atoms) {
  connect(&m_compositor, &X11Compositor::changed, this, &WindowSystem::compositingChanged);
  connect(&m_panelWatch, &X11PanelWatch::stateSettled, this, &X11WindowSystem::restore);
  // Asking for the clock takes a while, which nobody should wait for with the first show.
  QMetaObject::invokeMethod(
      this, [this] { serverTime(); }, Qt::QueuedConnection);
}

QScreen *X11WindowSystem::activeScreen() const {
  const auto screens = QGuiApplication::screens();
  if (screens.size() == 1) {
    return screens.front();  // the usual case needs no question
  }
  if (const auto centre = activeWindowCentre()) {
    for (QScreen *screen : screens) {
      if (nativeGeometry(*screen).contains(*centre)) {
        return screen;
      }
    }
  }
  return QtWindowSystem::activeScreen();
}

/// Window managers tell one work area for all monitors together, so that it says nothing of each of
/// several. Qt knows that, but takes a monitor that is plugged in as a second one for the only one
/// as long as it reads its work area.
QRect X11WindowSystem::workArea(const QScreen &screen) const {
  return QGuiApplication::screens().size() == 1 ? screen.availableGeometry() : screen.geometry();
}

void X11WindowSystem::noteRequest(const ActivationToken &token) {
  m_startupNotification.begin(token.startupId);
  if (const quint32 time = X11StartupNotification::timeOf(token.startupId)) {
    m_eventTime.note(time);
  } else {
    m_eventTime.forget();
  }
}

void X11WindowSystem::preparePanel(QWindow &window) {
  const xcb_window_t panel = nativeWindow(window);
  // A window manager that has not yet carried out the last hiding would wipe what is written now.
  comesTrue([&] { return !m_windowManager.isManaging(panel); });
  m_panel = panel;
  m_panelWatch.noteShow(window);
  setMarks(panel);
}

/// What a window manager reads when it is asked to show the window, and wipes when it is told that
/// the window is hidden.
void X11WindowSystem::setMarks(xcb_window_t panel) {
  const std::array types{m_atoms[X11Atoms::netWmWindowTypeUtility]};
  const std::array states{m_atoms[X11Atoms::netWmStateAbove], m_atoms[X11Atoms::netWmStateSticky],
                          m_atoms[X11Atoms::netWmStateSkipTaskbar],
                          m_atoms[X11Atoms::netWmStateSkipPager]};
  xcb_connection_t *connection = m_server.connection();
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, panel, m_atoms[X11Atoms::netWmWindowType],
                      XCB_ATOM_ATOM, bitsPerItem, types.size(), types.data());
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, panel, m_atoms[X11Atoms::netWmState],
                      XCB_ATOM_ATOM, bitsPerItem, states.size(), states.data());
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, panel, m_atoms[X11Atoms::netWmDesktop],
                      XCB_ATOM_CARDINAL, bitsPerItem, 1, &everyDesktop);
}

/// A request to hide that the window manager meets before it has shown the window changes nothing
/// for the server; a request to show right after it then changes nothing either, and the window
/// manager takes the hiding for the last word.
void X11WindowSystem::prepareHiding(QWindow &window) {
  m_keyboardHold.end();
  m_panelWatch.noteHiding();
  m_hasBeenLost = false;
  const xcb_window_t panel = nativeWindow(window);
  comesTrue([&] {
    return isViewable(panel) && (m_windowManager.isManaging(panel) || !m_windowManager.isRunning());
  });
  m_startupNotification.end();
}

/// Until the panel is as it should be: a person who takes it away once more means it.
void X11WindowSystem::restore(QWindow &panel) {
  if (!m_windowManager.isRunning()) {
    return;
  }
  const xcb_window_t window = nativeWindow(panel);
  if (m_windowManager.stateOf(window) != X11WindowManager::State::normal) {
    m_hasBeenLost = true;
    Q_EMIT panelLost();
  } else if (!hasProgramFocus() && !hasUserActedSince()) {
    m_hasBeenLost = true;
    activate(panel);
  } else if (m_hasBeenLost) {
    m_panelWatch.stop();
  }
}

/// Since the panel was to have the keyboard, as by a press in another window.
bool X11WindowSystem::hasUserActedSince() const {
  const quint32 recent = m_eventTime.recent();
  return recent != 0 && recent != m_panelTime;
}

bool X11WindowSystem::isOnScreen(const QWindow &window) const {
  const xcb_window_t native = nativeWindow(window);
  return isViewable(native) &&
         (m_windowManager.stateOf(native) == X11WindowManager::State::normal ||
          !m_windowManager.isRunning());
}

void X11WindowSystem::activate(QWindow &window) {
  m_keyboardHold.passTo(window);
  const xcb_window_t native = nativeWindow(window);
  if (m_windowManager.isRunning()) {
    askForActivation(native);
  } else {
    raiseAndFocus(native);
  }
  xcb_flush(m_server.connection());
  m_startupNotification.end();
}

/// Without a window manager the server shows a window at once. Should it not be viewable all the
/// same, the request is refused, and that answer is of no use to anybody.
void X11WindowSystem::raiseAndFocus(xcb_window_t window) {
  xcb_connection_t *connection = m_server.connection();
  const quint32 above = XCB_STACK_MODE_ABOVE;
  xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
  const auto cookie =
      xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
  xcb_discard_reply(connection, cookie.sequence);
}

/// The window manager meets these after the request to show the window, which it answers first.
void X11WindowSystem::askForActivation(xcb_window_t window) {
  const quint32 time = userTime();
  setUserTime(window, time);
  if (window == m_panel) {
    m_panelTime = time;
    addMarks(window);
  }
  m_windowManager.send(window, X11Atoms::netActiveWindow, {sourcePager, time});
}

void X11WindowSystem::setFrame(QWindow &window, const Frame &frame) {
  const double scale = window.devicePixelRatio();
  const auto pixels = [scale](int length) { return qRound(length * scale); };
  m_compositor.setFrame(nativeWindow(window),
                        {.size = {pixels(frame.size.width()), pixels(frame.size.height())},
                         .cornerRadius = pixels(frame.cornerRadius),
                         .shadow = {pixels(frame.shadow.left()), pixels(frame.shadow.top()),
                                    pixels(frame.shadow.right()), pixels(frame.shadow.bottom())}});
}

/// In the server's pixels. None without an active window, or when it has just gone.
std::optional<QPoint> X11WindowSystem::activeWindowCentre() const {
  const auto active = m_windowManager.windowProperty(m_server.root(), X11Atoms::netActiveWindow);
  if (!active || *active == XCB_WINDOW_NONE || *active == m_panel) {
    return std::nullopt;  // the panel tells nothing of where the user works
  }
  xcb_connection_t *connection = m_server.connection();
  const auto geometryCookie = xcb_get_geometry(connection, *active);
  const auto originCookie = xcb_translate_coordinates(connection, *active, m_server.root(), 0, 0);
  const auto geometry = awaitReply(xcb_get_geometry_reply, m_server, geometryCookie);
  const auto origin = awaitReply(xcb_translate_coordinates_reply, m_server, originCookie);
  if (!geometry || !origin) {
    return std::nullopt;
  }
  return QPoint(origin->dst_x + geometry->width / 2, origin->dst_y + geometry->height / 2);
}

/// As the server tells it: Qt hears of it only later.
bool X11WindowSystem::hasProgramFocus() const {
  const auto reply =
      awaitReply(xcb_get_input_focus_reply, m_server, xcb_get_input_focus(m_server.connection()));
  return reply && std::ranges::any_of(QGuiApplication::topLevelWindows(), [&](QWindow *window) {
           return window->handle() != nullptr && nativeWindow(*window) == reply->focus;
         });
}

bool X11WindowSystem::isViewable(xcb_window_t window) const {
  const auto reply = awaitReply(xcb_get_window_attributes_reply, m_server,
                                xcb_get_window_attributes(m_server.connection(), window));
  return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

/// Of what the program answers to. Where that is no event of the server's, such as the program's
/// start, it is now: of no time at all, some window managers keep the keyboard from the window.
quint32 X11WindowSystem::userTime() {
  if (const quint32 recent = m_eventTime.recent()) {
    return recent;
  }
  return serverTime().now();
}

const X11ServerTime &X11WindowSystem::serverTime() {
  if (!m_serverTime) {
    m_serverTime.emplace(m_server.connection());
  }
  return *m_serverTime;
}

/// Where the window manager allows it, Qt keeps the time on a window made for that, so that others
/// need not hear of every key; only there it counts. Qt's own time, which it writes with every
/// show, is that of the last event which it has seen itself.
void X11WindowSystem::setUserTime(xcb_window_t window, quint32 time) {
  if (time != 0) {  // which would say that the window does not want the keyboard
    const xcb_window_t keeper =
        m_windowManager.windowProperty(window, X11Atoms::netWmUserTimeWindow).value_or(window);
    xcb_change_property(m_server.connection(), XCB_PROP_MODE_REPLACE, keeper,
                        m_atoms[X11Atoms::netWmUserTime], XCB_ATOM_CARDINAL, bitsPerItem, 1, &time);
  }
}

/// The same as was written before the show, for window managers that do not look there: KWin puts a
/// window of a program's group on one desktop whatever it says, and a slow one wipes what it meets
/// before it has carried out the last hiding.
void X11WindowSystem::addMarks(xcb_window_t window) {
  constexpr quint32 add = 1;
  m_windowManager.send(
      window, X11Atoms::netWmState,
      {add, m_atoms[X11Atoms::netWmStateAbove], m_atoms[X11Atoms::netWmStateSticky], sourcePager});
  m_windowManager.send(window, X11Atoms::netWmState,
                       {add, m_atoms[X11Atoms::netWmStateSkipTaskbar],
                        m_atoms[X11Atoms::netWmStateSkipPager], sourcePager});
  m_windowManager.send(window, X11Atoms::netWmDesktop, {everyDesktop, sourcePager});
}

}  // namespace lanternix
