#include "Platform/Linux/X11Server.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <string_view>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

/// The screen number in DISPLAY, which Qt has connected to.
std::size_t defaultScreen() {
  char *host = nullptr;
  int display = 0;
  int screen = 0;
  const int parsed = xcb_parse_display(nullptr, &host, &display, &screen);
  const X11Reply<char> freedHost(host);
  return parsed != 0 ? static_cast<std::size_t>(screen) : 0;
}

constexpr std::string_view xwaylandExtension = "XWAYLAND";

/// Servers from before the extension name their screens so.
bool hasXWaylandScreens() {
  const QScreen *screen = QGuiApplication::primaryScreen();
  return screen != nullptr && screen->name().startsWith("XWAYLAND"_L1);
}

}  // namespace

X11Server::X11Server()
    : m_connection(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection()) {
  const auto extensionCookie =
      xcb_query_extension(m_connection, xwaylandExtension.size(), xwaylandExtension.data());
  for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)); screen.rem > 0;
       xcb_screen_next(&screen)) {
    m_roots.push_back(screen.data->root);
  }
  const std::size_t screen = defaultScreen();
  m_root = m_roots[screen < m_roots.size() ? screen : 0];
  const auto extension = awaitReply(xcb_query_extension_reply, *this, extensionCookie);
  m_isXWayland = (extension && extension->present != 0) || hasXWaylandScreens();
}

}  // namespace lanternix
