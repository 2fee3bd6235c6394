#include "Platform/Linux/QtWindowSystem.h"

#include "Platform/RoundedRegion.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

using namespace Qt::StringLiterals;

namespace lanternix {

QScreen *QtWindowSystem::activeScreen() const {
  QScreen *underPointer = QGuiApplication::screenAt(QCursor::pos());
  return underPointer != nullptr ? underPointer : QGuiApplication::primaryScreen();
}

void QtWindowSystem::preparePanel(QWindow & /*window*/) {}

void QtWindowSystem::prepareHiding(QWindow & /*window*/) {}

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
