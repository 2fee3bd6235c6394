#include "App/LocalKeyMonitor.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include <utility>

namespace lanternix {

LocalKeyMonitor::LocalKeyMonitor(Handler handler, QObject *parent)
    : QObject(parent), m_handler(std::move(handler)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool LocalKeyMonitor::eventFilter(QObject *watched, QEvent *event) {
  // The press comes to the native window first; its way on to a widget is not looked at again.
  if (event->type() != QEvent::KeyPress || !watched->isWindowType() ||
      QApplication::activePopupWidget() != nullptr) {
    return false;
  }
  return m_handler(*static_cast<QKeyEvent *>(event));
}

}  // namespace lanternix
