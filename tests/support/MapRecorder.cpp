#include "support/MapRecorder.h"

namespace lanternix {

MapRecorder::MapRecorder(const QString &displayName, xcb_window_t window)
    : m_connection(displayName) {
  const quint32 events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &events);
  m_connection.sync();
}

const QList<MapRecorder::Change> &MapRecorder::changes() {
  for (XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection)); event;
       event.reset(xcb_poll_for_event(m_connection))) {
    const int type = event->response_type & 0x7f;
    if (type == XCB_MAP_NOTIFY) {
      m_changes.append(Change::shown);
    } else if (type == XCB_UNMAP_NOTIFY) {
      m_changes.append(Change::hidden);
    }
  }
  return m_changes;
}

}  // namespace lanternix
