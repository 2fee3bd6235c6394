#include "Platform/Linux/QtWindowSystem.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

namespace lanternix {

QScreen *QtWindowSystem::activeScreen() const {
  QScreen *underPointer = QGuiApplication::screenAt(QCursor::pos());
  return underPointer != nullptr ? underPointer : QGuiApplication::primaryScreen();
}

void QtWindowSystem::preparePanel(QWindow & /*window*/) {}

void QtWindowSystem::prepareHiding(QWindow & /*window*/) {}

void QtWindowSystem::activate(QWindow &window) {
  window.raise();
  window.requestActivate();
}

}  // namespace lanternix
