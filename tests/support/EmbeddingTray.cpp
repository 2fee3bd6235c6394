#include "support/EmbeddingTray.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <algorithm>
#include <array>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr auto selectionName = "_NET_SYSTEM_TRAY_S0";
constexpr QRect place(1240, 4, 24, 24);

}  // namespace

EmbeddingTray::EmbeddingTray(const QString &displayName)
    : m_connection(displayName), m_window(xcb_generate_id(m_connection)) {
  const std::array<quint32, 2> values{m_connection.screen().white_pixel, 1};
  xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_connection.root(), place.x(),
                    place.y(), place.width(), place.height(), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                    XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
                    values.data());
  xcb_map_window(m_connection, m_window);
  announce();
}

void EmbeddingTray::announce() {
  const xcb_atom_t selection = m_connection.atom(selectionName);
  xcb_set_selection_owner(m_connection, m_window, selection, XCB_CURRENT_TIME);
  send(m_connection.root(), "MANAGER", {XCB_CURRENT_TIME, selection, m_window},
       XCB_EVENT_MASK_STRUCTURE_NOTIFY);
  m_connection.sync();
}

void EmbeddingTray::send(xcb_window_t to, const char *type, std::initializer_list<quint32> data,
                         quint32 mask) const {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = to;
  message.type = m_connection.atom(type);
  std::ranges::copy(data, message.data.data32);
  xcb_send_event(m_connection, 0, to, mask, reinterpret_cast<const char *>(&message));
}

bool EmbeddingTray::hasIcon() {
  return waitUntil([this] {
    readEvents();
    return m_icon.has_value();
  });
}

QRect EmbeddingTray::geometry() const {
  return place;
}

void EmbeddingTray::readEvents() {
  m_connection.sync();
  for (XReply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection)); event;
       event.reset(xcb_poll_for_event(m_connection))) {
    constexpr quint32 requestDock = 0;
    const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
    if ((event->response_type & ~0x80U) == XCB_CLIENT_MESSAGE &&
        message.type == m_connection.atom("_NET_SYSTEM_TRAY_OPCODE") &&
        message.data.data32[1] == requestDock) {
      embed(message.data.data32[2]);
    }
  }
}

void EmbeddingTray::embed(xcb_window_t icon) {
  constexpr quint32 embeddedNotify = 0;
  m_icon = icon;
  // Handed back to the root when the tray ends, as every tray does.
  xcb_change_save_set(m_connection, XCB_SET_MODE_INSERT, icon);
  xcb_reparent_window(m_connection, icon, m_window, 0, 0);
  const std::array<quint32, 2> size{place.width(), place.height()};
  xcb_configure_window(m_connection, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                       size.data());
  xcb_map_window(m_connection, icon);
  send(icon, "_XEMBED", {XCB_CURRENT_TIME, embeddedNotify, 0, m_window, 0},
       XCB_EVENT_MASK_NO_EVENT);
  m_connection.sync();
}

}  // namespace lanternix
