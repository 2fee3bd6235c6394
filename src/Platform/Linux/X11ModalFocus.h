#pragma once

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QObject>

class QWindow;

namespace lanternix {

class WindowSystem;

/// Hands the keyboard on from a window that waits for an answer to the dialog that asks. Window
/// managers give it to whichever window is pressed, and some take Qt's own request for an attempt
/// to steal it.
class X11ModalFocus : public QObject, public QAbstractNativeEventFilter {
 public:
  explicit X11ModalFocus(WindowSystem &windowSystem);

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 private:
  WindowSystem &m_windowSystem;
};

}  // namespace lanternix
