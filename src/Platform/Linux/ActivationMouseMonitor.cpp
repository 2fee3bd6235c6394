#include "Platform/Linux/ActivationMouseMonitor.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace lanternix {

using namespace std::chrono_literals;

ActivationMouseMonitor::ActivationMouseMonitor(LossByHiding lossByHiding)
    : m_lossByHiding(lossByHiding) {
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
    // Qt takes a hidden window for the one with the keyboard until the window system says
    // otherwise.
    const QWindow *window = QGuiApplication::focusWindow();
    const bool isDue =
        m_lossByHiding == LossByHiding::toldLate && window != nullptr && !window->isVisible();
    m_lateLoss = isDue ? QDeadlineTimer(1s) : QDeadlineTimer();
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
