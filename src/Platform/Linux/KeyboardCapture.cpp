#include "Platform/KeyboardCapture.h"

#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <xcb/xcb.h>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(keyboardLog, "lanternix.keyboard", QtWarningMsg)

}  // namespace

void setKeyboardCaptured(QWindow &window, bool captured) {
  if (QGuiApplication::platformName() != "xcb"_L1) {
    return;  // others would only complain that they cannot
  }
  if (!window.setKeyboardGrabEnabled(captured) && captured) {
    qCInfo(keyboardLog) << "The keyboard cannot be captured: shortcuts that other programs hold"
                        << "cannot be recorded";
  }
  // Qt's requests wait for the next one that needs an answer, which may be long in coming.
  xcb_flush(qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection());
}

}  // namespace lanternix
