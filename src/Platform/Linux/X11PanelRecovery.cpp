#include "Platform/Linux/X11PanelRecovery.h"

#include <QtCore/QCoreApplication>

namespace lanternix {

using namespace std::chrono_literals;

X11PanelRecovery::X11PanelRecovery(X11Atoms &atoms) : m_atoms(atoms) {
  m_pause.setSingleShot(true);
  m_pause.setInterval(100ms);
  connect(&m_pause, &QTimer::timeout, this, &X11PanelRecovery::check);
  QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11PanelRecovery::noteHiding() {
  m_recentHiding.setRemainingTime(2s);
  m_pause.stop();
}

void X11PanelRecovery::noteShow(QWindow &panel) {
  m_panel = &panel;
  m_pause.stop();
}

bool X11PanelRecovery::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                         qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  if (event.response_type == XCB_PROPERTY_NOTIFY && !m_recentHiding.hasExpired() && m_panel) {
    const auto &property = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (property.window == m_panel->winId() && property.atom == m_atoms[X11Atoms::wmState]) {
      m_pause.start();
    }
  }
  return false;
}

void X11PanelRecovery::check() {
  if (m_panel && m_panel->isVisible()) {
    Q_EMIT mayBeLost(*m_panel);
  }
}

}  // namespace lanternix
