#include "support/XConnection.h"

#include "support/HarnessError.h"

#include <cstring>

namespace lanternix {

using namespace Qt::StringLiterals;

XConnection::XConnection(const QString &displayName) {
  int screenNumber = 0;
  m_connection.reset(xcb_connect(displayName.toLocal8Bit().constData(), &screenNumber));
  if (xcb_connection_has_error(m_connection.get()) != 0) {
    throw HarnessError(u"no X server answers on display %1"_s.arg(displayName));
  }
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
  for (; screenNumber > 0; --screenNumber) {
    xcb_screen_next(&screens);
  }
  m_screen = screens.data;
}

xcb_atom_t XConnection::atom(const char *name) const {
  const QByteArray key(name);
  const auto known = m_atoms.constFind(key);
  if (known != m_atoms.constEnd()) {
    return *known;
  }
  const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
      get(), xcb_intern_atom(get(), 0, static_cast<quint16>(key.size()), name), nullptr));
  const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  m_atoms.insert(key, atom);
  return atom;
}

QString XConnection::atomName(xcb_atom_t atom) const {
  const XReply<xcb_get_atom_name_reply_t> reply(
      xcb_get_atom_name_reply(get(), xcb_get_atom_name(get(), atom), nullptr));
  return reply ? QString::fromLatin1(xcb_get_atom_name_name(reply.get()),
                                     xcb_get_atom_name_name_length(reply.get()))
               : QString();
}

QByteArray XConnection::property(xcb_window_t window, const char *name) const {
  constexpr quint32 enoughItems = 4096;
  const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      get(),
      xcb_get_property(get(), 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, enoughItems),
      nullptr));
  return reply ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                            xcb_get_property_value_length(reply.get()))
               : QByteArray();
}

quint32 XConnection::number(xcb_window_t window, const char *name, quint32 fallback) const {
  const QByteArray bytes = property(window, name);
  quint32 value = fallback;
  if (bytes.size() >= qsizetype{sizeof value}) {
    std::memcpy(&value, bytes.constData(), sizeof value);
  }
  return value;
}

quint32 XConnection::time() const {
  const xcb_window_t window = xcb_generate_id(*this);
  const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(*this, XCB_COPY_FROM_PARENT, window, root(), 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  xcb_change_property(*this, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 1,
                      "x");
  xcb_flush(*this);
  quint32 time = 0;
  while (const XReply<xcb_generic_event_t> event{xcb_wait_for_event(*this)}) {
    if (event->response_type == XCB_PROPERTY_NOTIFY) {  // others come unasked
      time = reinterpret_cast<const xcb_property_notify_event_t &>(*event).time;
      break;
    }
  }
  xcb_destroy_window(*this, window);
  return time;
}

void XConnection::sync() const {
  const XReply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr));
}

}  // namespace lanternix
