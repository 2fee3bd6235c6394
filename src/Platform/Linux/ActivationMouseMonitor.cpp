#include "Platform/Linux/ActivationMouseMonitor.h"

#include <QtGui/QGuiApplication>

namespace lanternix {

ActivationMouseMonitor::ActivationMouseMonitor() {
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (m_active && state == Qt::ApplicationInactive) {
              Q_EMIT pressedOutside();
            }
          });
}

}  // namespace lanternix
