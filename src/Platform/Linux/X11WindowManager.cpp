#include "Platform/Linux/X11WindowManager.h"

#include <algorithm>

namespace lanternix {
namespace {

constexpr quint8 bitsPerItem = 32;

}  // namespace

/// It keeps a window that names itself, which one that has died does not.
bool X11WindowManager::isRunning() const {
  const auto check = windowProperty(m_server.root(), X11Atoms::netSupportingWmCheck);
  return check && windowProperty(*check, X11Atoms::netSupportingWmCheck) == check;
}

X11WindowManager::State X11WindowManager::stateOf(xcb_window_t window) const {
  const auto reply =
      awaitReply(xcb_get_property_reply, m_server,
                 xcb_get_property(m_server.connection(), 0, window, m_atoms[X11Atoms::wmState],
                                  m_atoms[X11Atoms::wmState], 0, 1));
  if (!reply || reply->format != bitsPerItem || reply->value_len != 1) {
    return State::withdrawn;
  }
  return *static_cast<const State *>(xcb_get_property_value(reply.get()));
}

std::optional<xcb_window_t> X11WindowManager::windowProperty(xcb_window_t window,
                                                             X11Atoms::Name property) const {
  const auto reply = awaitReply(
      xcb_get_property_reply, m_server,
      xcb_get_property(m_server.connection(), 0, window, m_atoms[property], XCB_ATOM_WINDOW, 0, 1));
  if (!reply || reply->format != bitsPerItem || reply->value_len != 1) {
    return std::nullopt;
  }
  return *static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
}

void X11WindowManager::send(xcb_window_t window, X11Atoms::Name type,
                            const std::array<quint32, 5> &data) const {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = bitsPerItem;
  message.window = window;
  message.type = m_atoms[type];
  std::ranges::copy(data, message.data.data32);
  xcb_send_event(m_server.connection(), 0, m_server.root(),
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char *>(&message));
}

}  // namespace lanternix
