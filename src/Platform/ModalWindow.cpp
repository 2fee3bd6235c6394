#include "Platform/ModalWindow.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace lanternix {

QWindow *modalWindow() {
  QWindow *window = QGuiApplication::modalWindow();
  while (window != nullptr && !window->isVisible()) {
    window = window->transientParent();
  }
  return window != nullptr && window->modality() != Qt::NonModal ? window : nullptr;
}

}  // namespace lanternix
