#include "support/Compositor.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

namespace lanternix {

using namespace Qt::StringLiterals;

Compositor::Compositor(const QString &displayName)
    : m_connection(displayName), m_process(u"picom"_s, u"picom"_s) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"DISPLAY"_s, displayName);
  environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
  m_process.start({u"--backend"_s, u"xrender"_s, u"--config"_s, u"/dev/null"_s}, environment);
  const bool runs = waitUntil([this] { return isAnnounced() || !m_process.isRunning(); });
  if (!runs || !m_process.isRunning()) {
    throw HarnessError(u"the compositor did not come up: "_s +
                       QString::fromUtf8(m_process.errors()));
  }
}

void Compositor::stop() {
  m_process.stop();
  require(u"the compositor's end"_s, [this] { return !isAnnounced(); });
}

/// A compositor owns this selection as long as it runs.
bool Compositor::isAnnounced() const {
  const XReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
      m_connection, xcb_get_selection_owner(m_connection, m_connection.atom("_NET_WM_CM_S0")),
      nullptr));
  return reply && reply->owner != XCB_WINDOW_NONE;
}

}  // namespace lanternix
