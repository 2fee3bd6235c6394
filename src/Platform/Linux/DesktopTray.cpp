#include "Platform/Linux/DesktopTray.h"

#include "Platform/Linux/StatusNotifierHost.h"
#include "Platform/Linux/X11SelectionWatch.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <utility>

namespace lanternix {

using namespace Qt::StringLiterals;

DesktopTray::DesktopTray(std::unique_ptr<StatusNotifierHost> host,
                         std::unique_ptr<X11SelectionWatch> embedder)
    : m_host(std::move(host)), m_embedder(std::move(embedder)) {
  if (m_host) {
    connect(m_host.get(), &StatusNotifierHost::changed, this, &SystemTray::changed);
  }
  if (m_embedder) {
    connect(m_embedder.get(), &X11SelectionWatch::changed, this, &SystemTray::changed);
  }
}

DesktopTray::~DesktopTray() = default;

SystemTray::Kind DesktopTray::kind() const {
  const auto presence = m_host ? m_host->presence() : StatusNotifierHost::Presence::absent;
  if (presence == StatusNotifierHost::Presence::present) {
    return Kind::drawing;
  }
  // While the better one has not answered yet, the other has to wait.
  const bool isEmbedder =
      presence == StatusNotifierHost::Presence::absent && m_embedder && m_embedder->isOwned();
  return isEmbedder ? Kind::embedding : Kind::none;
}

bool DesktopTray::isAlwaysDark() const {
  // The bar of GNOME Shell is dark in its light appearance too; no setting tells so.
  return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains("GNOME"_L1);
}

}  // namespace lanternix
