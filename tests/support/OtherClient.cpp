#include "support/OtherClient.h"

#include "support/WaitUntil.h"

#include <X11/keysym.h>
#include <array>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

void setText(const XConnection &connection, xcb_window_t window, xcb_atom_t property,
             xcb_atom_t type, const QByteArray &text) {
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 8,
                      static_cast<quint32>(text.size()), text.constData());
}

}  // namespace

OtherClient::OtherClient(const QString &displayName, QRect geometry, Shape shape)
    : m_connection(displayName), m_keyboard(m_connection), m_window(xcb_generate_id(m_connection)) {
  const std::array<quint32, 2> values{m_connection.screen().white_pixel,
                                      XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_BUTTON_PRESS |
                                          XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_EXPOSURE |
                                          XCB_EVENT_MASK_STRUCTURE_NOTIFY};
  xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_connection.root(),
                    static_cast<qint16>(geometry.x()), static_cast<qint16>(geometry.y()),
                    static_cast<quint16>(geometry.width()), static_cast<quint16>(geometry.height()),
                    0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                    XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
  setText(m_connection, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, "other\0Other\0"_ba);
  setText(m_connection, m_window, m_connection.atom("_NET_WM_NAME"),
          m_connection.atom("UTF8_STRING"), "Other"_ba);
  // Size hints that say "the user chose this place", so that the window manager keeps it.
  std::array<quint32, 18> hints{};
  hints[0] = 1U;
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_NORMAL_HINTS,
                      XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
  if (shape == Shape::fullScreen) {
    const xcb_atom_t state = m_connection.atom("_NET_WM_STATE_FULLSCREEN");
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window,
                        m_connection.atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 1, &state);
  } else if (shape == Shape::dock) {
    becomeDock(geometry);
  }
  m_connection.sync();
}

void OtherClient::becomeDock(const QRect &geometry) {
  const xcb_atom_t type = m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window,
                      m_connection.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
  // What it takes of each edge (left, right, top, bottom), then from where to where.
  std::array<quint32, 12> strut{};
  strut[3] = static_cast<quint32>(geometry.height());
  strut[10] = static_cast<quint32>(geometry.left());
  strut[11] = static_cast<quint32>(geometry.right());
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window,
                      m_connection.atom("_NET_WM_STRUT_PARTIAL"), XCB_ATOM_CARDINAL, 32,
                      strut.size(), strut.data());
}

void OtherClient::show() {
  xcb_map_window(m_connection, m_window);
  m_connection.sync();
  require(u"the other program's window"_s, [this] {
    readEvents();
    return m_mapped;
  });
}

void OtherClient::takeFocus() {
  require(u"the other program's focus"_s, [this] {
    if (hasFocus()) {
      return true;
    }
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_window, XCB_CURRENT_TIME);
    m_connection.sync();
    return hasFocus();
  });
}

const QList<xcb_keysym_t> &OtherClient::keys() {
  readEvents();
  return m_keys;
}

const QList<quint8> &OtherClient::buttons() {
  readEvents();
  return m_buttons;
}

bool OtherClient::hasFocus() {
  readEvents();
  return m_focused;
}

bool OtherClient::holdKey(xcb_keysym_t key, quint16 modifiers) {
  const xcb_void_cookie_t cookie = xcb_grab_key_checked(m_connection, 0, m_connection.root(),
                                                        modifiers, m_keyboard.positionOf(key).code,
                                                        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  const XReply<xcb_generic_error_t> error(xcb_request_check(m_connection, cookie));
  return !error;
}

void OtherClient::letKeyGo(xcb_keysym_t key, quint16 modifiers) {
  xcb_ungrab_key(m_connection, m_keyboard.positionOf(key).code, m_connection.root(), modifiers);
  m_connection.sync();
}

bool OtherClient::canTakeKeyboard() {
  const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
      m_connection,
      xcb_grab_keyboard(m_connection, 0, m_connection.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                        XCB_GRAB_MODE_ASYNC),
      nullptr));
  if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) {
    return false;
  }
  xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
  m_connection.sync();
  return true;
}

bool OtherClient::isKeyTaken(xcb_keysym_t key, quint16 modifiers) {
  xcb_grab_server(m_connection);  // or somebody might be refused what is only tried here
  const bool isFree = holdKey(key, modifiers);
  if (isFree) {
    letKeyGo(key, modifiers);
  }
  xcb_ungrab_server(m_connection);
  m_connection.sync();
  return !isFree;
}

/// Keys can be taken for a window that is shown only, but that nobody else has them is looked at
/// first. Taking them would be in the way even for a moment: who asks next for the time of a key
/// that came before is refused.
bool OtherClient::isKeyboardTaken() const {
  const xcb_window_t hidden = xcb_generate_id(m_connection);
  xcb_create_window(m_connection, 0, hidden, m_connection.root(), 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  const XReply<xcb_grab_keyboard_reply_t> reply(
      xcb_grab_keyboard_reply(m_connection,
                              xcb_grab_keyboard(m_connection, 0, hidden, XCB_CURRENT_TIME,
                                                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                              nullptr));
  xcb_destroy_window(m_connection, hidden);
  return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

void OtherClient::readEvents() {
  m_connection.sync();
  for (XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection)); event;
       event.reset(xcb_poll_for_event(m_connection))) {
    switch (event->response_type & ~0x80U) {
      case XCB_KEY_PRESS: {
        const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event.get());
        m_keys.append(m_keyboard.symbolOf(key->detail));
        noteUserTime(key->time);
        break;
      }
      case XCB_BUTTON_PRESS: {
        const auto *button = reinterpret_cast<const xcb_button_press_event_t *>(event.get());
        m_buttons.append(button->detail);
        noteUserTime(button->time);
        break;
      }
      case XCB_EXPOSE:
        m_mapped = true;
        break;
      case XCB_FOCUS_IN:
      case XCB_FOCUS_OUT: {
        // A grab of the keyboard by somebody else comes and goes without moving the focus.
        const auto *focus = reinterpret_cast<const xcb_focus_in_event_t *>(event.get());
        if (focus->mode == XCB_NOTIFY_MODE_NORMAL || focus->mode == XCB_NOTIFY_MODE_WHILE_GRABBED) {
          m_focused = (event->response_type & ~0x80U) == XCB_FOCUS_IN;
        }
        break;
      }
      default:
        break;
    }
  }
}

void OtherClient::noteUserTime(xcb_timestamp_t time) {
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window,
                      m_connection.atom("_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 32, 1, &time);
  m_connection.sync();
}

}  // namespace lanternix
