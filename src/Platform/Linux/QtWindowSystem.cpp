#include "Platform/Linux/QtWindowSystem.h"

#include "Platform/ActivationToken.h"
#include "Platform/RoundedRegion.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

#include <utility>

using namespace Qt::StringLiterals;

namespace lanternix {

QScreen *QtWindowSystem::activeScreen() const {
  QScreen *underPointer = QGuiApplication::screenAt(QCursor::pos());
  return underPointer != nullptr ? underPointer : QGuiApplication::primaryScreen();
}

void QtWindowSystem::noteRequest(const ActivationToken &token) {
  m_token = token.token;
}

QRect QtWindowSystem::workArea(const QScreen &screen) const {
  return screen.availableGeometry();
}

void QtWindowSystem::preparePanel(QWindow & /*window*/) {}

void QtWindowSystem::prepareHiding(QWindow & /*window*/) {
  m_token.clear();
}

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
  // The one way to hand a token to Qt, which looks for it there while it asks.
  constexpr auto variable = "XDG_ACTIVATION_TOKEN";
  const QString token = std::exchange(m_token, QString());
  if (!token.isEmpty()) {
    qputenv(variable, token.toUtf8());
  }
  window.raise();
  window.requestActivate();
  if (!token.isEmpty()) {
    qunsetenv(variable);
  }
}

}  // namespace lanternix
