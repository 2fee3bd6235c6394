#include "Platform/Linux/X11PanelWatch.h"

#include <QtCore/QCoreApplication>

namespace lanternix {

using namespace std::chrono_literals;

X11PanelWatch::X11PanelWatch(X11Atoms &atoms) : m_atoms(atoms) {
  m_pause.setSingleShot(true);
  m_pause.setInterval(100ms);
  connect(&m_pause, &QTimer::timeout, this, &X11PanelWatch::announce);
  QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11PanelWatch::noteHiding() {
  m_end.setRemainingTime(2s);
  m_pause.stop();
}

void X11PanelWatch::noteShow(QWindow &panel) {
  m_panel = &panel;
  m_pause.stop();
}

void X11PanelWatch::stop() {
  m_end = QDeadlineTimer();
  m_pause.stop();
}

bool X11PanelWatch::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                      qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  if (event.response_type != XCB_PROPERTY_NOTIFY || m_end.hasExpired()) {
    return false;
  }
  // The state of a hidden panel, which is written too, is of no interest and nothing to wake for.
  const auto &property = reinterpret_cast<const xcb_property_notify_event_t &>(event);
  if (m_panel && m_panel->isVisible() && property.window == m_panel->winId() &&
      property.atom == m_atoms[X11Atoms::wmState]) {
    m_pause.start();
  }
  return false;
}

void X11PanelWatch::announce() {
  if (m_panel && m_panel->isVisible()) {
    Q_EMIT stateSettled(*m_panel);
  }
}

}  // namespace lanternix
