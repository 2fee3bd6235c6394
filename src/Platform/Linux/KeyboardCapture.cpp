#include "Platform/KeyboardCapture.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace lanternix {

using namespace Qt::StringLiterals;

void setKeyboardCaptured(QWindow &window, bool captured) {
  // Others would only complain that they cannot.
  if (QGuiApplication::platformName() == "xcb"_L1) {
    window.setKeyboardGrabEnabled(captured);
  }
}

}  // namespace lanternix
