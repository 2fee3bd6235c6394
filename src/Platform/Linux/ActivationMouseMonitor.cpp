#include "Platform/Linux/ActivationMouseMonitor.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace lanternix {

using namespace std::chrono_literals;

ActivationMouseMonitor::ActivationMouseMonitor() {
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (m_active && state == Qt::ApplicationInactive) {
              lose();
            }
          });
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *window) {
    if (window != nullptr) {
      m_lateLoss = {};
    }
  });
}

void ActivationMouseMonitor::setActive(bool active) {
  if (active && !m_active) {
    // Qt hears that a hidden window has lost the keyboard only when the system says so, and until
    // then takes it for the one that has it.
    const QWindow *window = QGuiApplication::focusWindow();
    m_lateLoss = window != nullptr && !window->isVisible() ? QDeadlineTimer(1s) : QDeadlineTimer();
  }
  m_active = active;
}

void ActivationMouseMonitor::lose() {
  const bool isLate = !m_lateLoss.hasExpired();
  m_lateLoss = {};
  if (!isLate) {
    Q_EMIT pressedOutside();
  }
}

}  // namespace lanternix
