#include "support/StartupListener.h"

namespace lanternix {

StartupListener::StartupListener(const QString &displayName) : m_connection(displayName) {
  const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(m_connection, m_connection.root(), XCB_CW_EVENT_MASK, &events);
  m_connection.sync();
}

const QStringList &StartupListener::texts() {
  m_connection.sync();
  for (XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection)); event;
       event.reset(xcb_poll_for_event(m_connection))) {
    if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE) {
      take(reinterpret_cast<const xcb_client_message_event_t &>(*event));
    }
  }
  return m_texts;
}

void StartupListener::take(const xcb_client_message_event_t &piece) {
  if (piece.type == m_connection.atom("_NET_STARTUP_INFO_BEGIN")) {
    m_begun.insert(piece.window, {});
  } else if (piece.type != m_connection.atom("_NET_STARTUP_INFO") ||
             !m_begun.contains(piece.window)) {
    return;
  }
  QByteArray &text = m_begun[piece.window];
  text.append(reinterpret_cast<const char *>(piece.data.data8), sizeof piece.data.data8);
  const qsizetype end = text.indexOf('\0');
  if (end >= 0) {
    m_texts.append(QString::fromUtf8(text.first(end)));
    m_begun.remove(piece.window);
  }
}

}  // namespace lanternix
