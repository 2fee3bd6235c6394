#include "Platform/Linux/X11HotkeyRegistrar.h"

#include "Platform/KeyCodes.h"
#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/X11Keyboard.h"
#include "Platform/Linux/X11KeyboardHold.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

#include <algorithm>
#include <array>
#include <string_view>

namespace lanternix {
namespace {

Q_LOGGING_CATEGORY(hotkeyLog, "lanternix.hotkey", QtWarningMsg)

constexpr std::string_view xkbExtension = "XKEYBOARD";
// The kinds of XKB event that tell of a new keyboard or a new map; the kind is the second byte.
constexpr quint8 xkbNewKeyboardNotify = 0;
constexpr quint8 xkbMapNotify = 1;

quint8 eventType(const xcb_generic_event_t &event) {
  constexpr quint8 sentByClient = 0x80;
  return static_cast<quint8>(event.response_type & ~sentByClient);
}

}  // namespace

X11HotkeyRegistrar::X11HotkeyRegistrar(const X11Server &server, X11EventTime &eventTime,
                                       X11KeyboardHold &keyboardHold)
    : m_server(server),
      m_eventTime(eventTime),
      m_keyboardHold(keyboardHold),
      m_xkbCookie(
          xcb_query_extension(server.connection(), xkbExtension.size(), xkbExtension.data())) {
  // A change of the map comes as a burst of events, which are answered once.
  m_following.setSingleShot(true);
  connect(&m_following, &QTimer::timeout, this, &X11HotkeyRegistrar::followKeyboard);
  QCoreApplication::instance()->installNativeEventFilter(this);
  // Once there is time for it.
  QMetaObject::invokeMethod(&m_keyboardHold, &X11KeyboardHold::prepare, Qt::QueuedConnection);
}

X11HotkeyRegistrar::~X11HotkeyRegistrar() {
  release();
  if (!m_xkbEvent) {
    xcb_discard_reply(m_server.connection(), m_xkbCookie.sequence);
  }
}

bool X11HotkeyRegistrar::registerHotkey(quint32 keyCode, quint32 classicModifiers) {
  unregisterHotkey();
  const Hotkey hotkey{keyCode, classicModifiers};
  const X11Keyboard keyboard(m_server);
  if (!m_xkbEvent) {
    const auto xkb = awaitReply(xcb_query_extension_reply, m_server, m_xkbCookie);
    m_xkbEvent = xkb && xkb->present != 0 ? xkb->first_event : quint8{0};
  }
  if (!hold(grabsFor(hotkey, keyboard))) {
    return false;
  }
  m_wanted = hotkey;
  return true;
}

void X11HotkeyRegistrar::unregisterHotkey() {
  m_wanted.reset();
  release();
}

std::vector<X11HotkeyRegistrar::Grab> X11HotkeyRegistrar::grabsFor(
    const Hotkey &hotkey, const X11Keyboard &keyboard) const {
  const auto key = KeyCodes::keyForVirtualCode(hotkey.keyCode);
  const auto modifiers = keyboard.modifierMask(hotkey.classicModifiers);
  if (!key || !modifiers) {
    return {};
  }
  std::vector<quint16> lockStates;
  for (const quint16 capsLock : {quint16{0}, quint16{XCB_MOD_MASK_LOCK}}) {
    for (const quint16 numLock : {quint16{0}, keyboard.numLockMask()}) {
      const auto mask = static_cast<quint16>(*modifiers | capsLock | numLock);
      if (std::ranges::find(lockStates, mask) == lockStates.end()) {
        lockStates.push_back(mask);
      }
    }
  }
  std::vector<Grab> grabs;
  for (const xcb_keycode_t keyCode : keyboard.keyCodes(*key)) {
    for (const xcb_window_t root : m_server.roots()) {
      for (const quint16 mask : lockStates) {
        grabs.push_back({root, keyCode, mask});
      }
    }
  }
  return grabs;
}

/// Takes all of \p grabs, or none when the server refuses one.
bool X11HotkeyRegistrar::hold(std::vector<Grab> grabs) {
  // Without owner events, or the held shortcut would type into our own focused window.
  constexpr quint8 ownerEvents = 0;
  std::vector<xcb_void_cookie_t> cookies;
  cookies.reserve(grabs.size());
  for (const Grab &grab : grabs) {
    cookies.push_back(xcb_grab_key_checked(m_server.connection(), ownerEvents, grab.root,
                                           grab.modifiers, grab.keyCode, XCB_GRAB_MODE_ASYNC,
                                           XCB_GRAB_MODE_ASYNC));
  }
  m_grabs = std::move(grabs);
  bool refused = m_grabs.empty();
  // The last answer first: once it is here all others are, so that all cost one round trip.
  for (auto cookie = cookies.rbegin(); cookie != cookies.rend(); ++cookie) {
    const X11Reply<xcb_generic_error_t> error(xcb_request_check(m_server.connection(), *cookie));
    refused = refused || error;
  }
  if (refused) {
    release();
  }
  return !refused;
}

void X11HotkeyRegistrar::release() {
  for (const Grab &grab : m_grabs) {
    xcb_ungrab_key(m_server.connection(), grab.keyCode, grab.root, grab.modifiers);
  }
  m_grabs.clear();
  m_releasedKey = 0;
  xcb_flush(m_server.connection());
}

void X11HotkeyRegistrar::followKeyboard() {
  if (!m_wanted) {
    return;
  }
  auto grabs = grabsFor(*m_wanted, X11Keyboard(m_server));
  if (grabs == m_grabs) {
    return;  // most changes leave our key where it was
  }
  release();
  if (!hold(std::move(grabs))) {
    qCWarning(hotkeyLog) << "The keyboard has changed and the shortcut cannot be had on it; it"
                         << "comes back with a keyboard that has its keys free";
  }
}

bool X11HotkeyRegistrar::isKeyboardChange(const xcb_generic_event_t &event) const {
  const quint8 type = eventType(event);
  if (type == XCB_MAPPING_NOTIFY) {
    return reinterpret_cast<const xcb_mapping_notify_event_t &>(event).request !=
           XCB_MAPPING_POINTER;
  }
  return type != 0 && type == m_xkbEvent &&
         (event.pad0 == xkbNewKeyboardNotify || event.pad0 == xkbMapNotify);
}

/// Key events reach a root window through our grab alone: nobody else selects them for us there.
bool X11HotkeyRegistrar::isOurs(const xcb_key_press_event_t &event) const {
  return std::ranges::find(m_server.roots(), event.event) != m_server.roots().end();
}

void X11HotkeyRegistrar::handlePress(const xcb_key_press_event_t &event) {
  m_eventTime.note(event.time);
  // A held key repeats as a release and a press at the same moment. So do two presses by a program
  // that plays keys faster than any keyboard repeats them.
  constexpr quint32 shortestRepeat = 5;  // milliseconds
  const bool repeats = m_releasedKey == event.detail && m_releaseTime == event.time &&
                       event.time - m_pressTime >= shortestRepeat;
  m_pressTime = event.time;
  const bool isHotkey = std::ranges::find(m_grabs, event.detail, &Grab::keyCode) != m_grabs.end();
  if (isHotkey && !repeats) {
    // First of all, for the hold begins when this reaches the server.
    m_keyboardHold.begin(event.time);
    Q_EMIT pressed();
    // Behind whatever answers the press, from the event loop as well.
    QMetaObject::invokeMethod(&m_keyboardHold, &X11KeyboardHold::endUnlessPassed,
                              Qt::QueuedConnection);
  }
}

bool X11HotkeyRegistrar::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                           qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  const quint8 type = eventType(event);
  if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
    const auto &keyEvent = reinterpret_cast<const xcb_key_press_event_t &>(event);
    if (!isOurs(keyEvent)) {
      return false;
    }
    if (type == XCB_KEY_PRESS) {
      handlePress(keyEvent);
    } else {
      m_releasedKey = keyEvent.detail;
      m_releaseTime = keyEvent.time;
    }
    return true;
  }
  if (isKeyboardChange(event)) {
    m_following.start();
  }
  return false;
}

}  // namespace lanternix
