#include "support/ProgramPing.h"

#include "support/WaitUntil.h"

namespace lanternix {

using namespace Qt::StringLiterals;

ProgramPing::ProgramPing(const QString &displayName, xcb_window_t window)
    : m_connection(displayName), m_window(window) {
  // The answer goes to the root window, by the mask that the program's toolkit chooses.
  const quint32 events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(m_connection, m_connection.root(), XCB_CW_EVENT_MASK, &events);
  m_connection.sync();
}

void ProgramPing::waitForAnswer() {
  // What the program postpones while it handles an event, it does before it gets to a ping that is
  // sent only after that event.
  for (int round = 0; round < 2; ++round) {
    ask();
    require(u"the program's answer"_s, [this] { return isAnswered(); });
  }
}

void ProgramPing::ask() {
  xcb_client_message_event_t ping{};
  ping.response_type = XCB_CLIENT_MESSAGE;
  ping.format = 32;
  ping.window = m_window;
  ping.type = m_connection.atom("WM_PROTOCOLS");
  ping.data.data32[0] = m_connection.atom("_NET_WM_PING");
  ping.data.data32[1] = ++m_number;
  ping.data.data32[2] = m_window;
  xcb_send_event(m_connection, 0, m_window, XCB_EVENT_MASK_NO_EVENT,
                 reinterpret_cast<const char *>(&ping));
  m_connection.sync();
}

bool ProgramPing::isAnswered() {
  bool answered = false;
  for (XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection)); event;
       event.reset(xcb_poll_for_event(m_connection))) {
    const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
    answered = answered || ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE &&
                            message.window == m_connection.root() &&
                            message.data.data32[0] == m_connection.atom("_NET_WM_PING") &&
                            message.data.data32[1] == m_number);
  }
  return answered;
}

}  // namespace lanternix
