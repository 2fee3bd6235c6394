#include "Platform/Linux/QtWindowSystem.h"

#include "Platform/RoundedRegion.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

using namespace Qt::StringLiterals;

namespace lanternix {

QScreen *QtWindowSystem::activeScreen() const {
  QScreen *underPointer = QGuiApplication::screenAt(QCursor::pos());
  return underPointer != nullptr ? underPointer : QGuiApplication::primaryScreen();
}

QRect QtWindowSystem::workArea() const {
  const QScreen *screen = activeScreen();
  return screen != nullptr ? screen->availableGeometry() : QRect();
}

void QtWindowSystem::preparePanel(QWindow & /*window*/) {}

void QtWindowSystem::prepareHiding(QWindow & /*window*/) {}

bool QtWindowSystem::takeDrag(QWindow & /*window*/, Qt::Edges /*edges*/, QPoint /*position*/) {
  return false;
}

void QtWindowSystem::setGeometry(QWindow &window, const QRect &geometry) {
  if (window.geometry() != geometry) {
    window.setGeometry(geometry);
  }
}

QPoint QtWindowSystem::pointerPosition(const QMouseEvent &event) const {
  return event.globalPosition().toPoint();
}

bool QtWindowSystem::isComposited() const {
  return QGuiApplication::platformName().startsWith("wayland"_L1);
}

void QtWindowSystem::setFrame(QWindow &window, const Frame &frame) {
  const QRect area(QPoint(frame.shadow.left(), frame.shadow.top()), frame.size);
  // Where windows are blended, the mask says only where presses are taken.
  window.setMask(isComposited() ? QRegion(area) : roundedRegion(area, frame.cornerRadius));
}

void QtWindowSystem::activate(QWindow &window) {
  window.raise();
  window.requestActivate();
}

}  // namespace lanternix
