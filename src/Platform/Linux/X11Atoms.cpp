#include "Platform/Linux/X11Atoms.h"

#include <string_view>

namespace lanternix {
namespace {

constexpr std::array<std::string_view, X11Atoms::nameCount> names{
    "_GTK_FRAME_EXTENTS",
    "_KDE_NET_WM_BLUR_BEHIND_REGION",
    "_NET_ACTIVE_WINDOW",
    "_NET_STARTUP_INFO",
    "_NET_STARTUP_INFO_BEGIN",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_WM_DESKTOP",
    "_NET_WM_STATE",
    "_NET_WM_STATE_ABOVE",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_STATE_STICKY",
    "_NET_WM_USER_TIME",
    "_NET_WM_USER_TIME_WINDOW",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_UTILITY",
    "WM_STATE",
};

}  // namespace

X11Atoms::X11Atoms(const X11Server &server) : m_server(server) {
  constexpr quint8 createWhereMissing = 0;
  for (std::size_t i = 0; i < nameCount; ++i) {
    m_cookies[i] = xcb_intern_atom(server.connection(), createWhereMissing,
                                   static_cast<quint16>(names[i].size()), names[i].data());
  }
}

X11Atoms::~X11Atoms() {
  if (!m_received) {
    for (const auto cookie : m_cookies) {
      xcb_discard_reply(m_server.connection(), cookie.sequence);
    }
  }
}

xcb_atom_t X11Atoms::operator[](Name name) {
  if (!m_received) {
    m_received = true;
    for (std::size_t i = 0; i < nameCount; ++i) {
      const auto reply = awaitReply(xcb_intern_atom_reply, m_server, m_cookies[i]);
      m_atoms[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
  }
  return m_atoms[name];
}

}  // namespace lanternix
