#include "support/DesktopSession.h"

namespace lanternix {

using namespace Qt::StringLiterals;

DesktopSession::DesktopSession(WithManager withManager, WithBus withBus, QSize screenSize,
                               VirtualDisplay::Outputs outputs)
    : m_display(screenSize, outputs),
      m_windowManager(withManager == WithManager::yes ? std::make_unique<WindowManager>(m_display)
                                                      : nullptr),
      m_bus(withBus == WithBus::yes ? std::make_unique<SessionBus>() : nullptr),
      m_input(m_display.name(), m_windowManager.get()),
      m_windows(m_display.name()) {}

QProcessEnvironment DesktopSession::variables() const {
  QProcessEnvironment variables = m_home.variables();
  variables.insert(u"DISPLAY"_s, m_display.name());
  // Without a bus of the session's own the program must not find the person's either.
  variables.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                   m_bus ? m_bus->address() : u"unix:path=/nonexistent"_s);
  return variables;
}

std::unique_ptr<OtherClient> DesktopSession::openOtherWindow(QRect geometry,
                                                             OtherClient::Shape shape) {
  auto client = std::make_unique<OtherClient>(displayName(), geometry, shape);
  client->show();
  client->takeFocus();
  return client;
}

}  // namespace lanternix
