#include "Platform/Linux/X11SelectionWatch.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <string>
#include <xcb/xfixes.h>

namespace lanternix {
namespace {

constexpr quint32 selectionMask = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                  XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                  XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;

qsizetype screenNumber(const X11Server &server) {
  const auto root = std::ranges::find(server.roots(), server.root());
  return root - server.roots().begin();
}

}  // namespace

X11SelectionWatch::X11SelectionWatch(const X11Server &server, const char *prefix)
    : m_server(server) {
  const std::string name = prefix + std::to_string(screenNumber(server));
  const auto atom = awaitReply(
      xcb_intern_atom_reply, server,
      xcb_intern_atom(server.connection(), 0, static_cast<quint16>(name.size()), name.data()));
  m_selection = atom ? atom->atom : xcb_atom_t{XCB_ATOM_NONE};
  select();
  const auto owner = awaitReply(xcb_get_selection_owner_reply, server,
                                xcb_get_selection_owner(server.connection(), m_selection));
  m_isOwned = owner && owner->owner != XCB_WINDOW_NONE;
  QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11SelectionWatch::select() {
  xcb_connection_t *connection = m_server.connection();
  const auto *extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
  if (extension != nullptr && extension->present != 0) {
    m_firstEvent = extension->first_event;
    xcb_xfixes_select_selection_input(connection, m_server.root(), m_selection, selectionMask);
  }
}

bool X11SelectionWatch::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                          qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  constexpr int sentFlag = 0x80;
  if (m_firstEvent != 0 &&
      (event.response_type & ~sentFlag) == m_firstEvent + XCB_XFIXES_SELECTION_NOTIFY) {
    const auto &notice = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    const bool isOwned = notice.owner != XCB_WINDOW_NONE;
    if (notice.selection == m_selection && notice.window == m_server.root() &&
        isOwned != m_isOwned) {
      m_isOwned = isOwned;
      Q_EMIT changed();
    }
  }
  return false;
}

}  // namespace lanternix
