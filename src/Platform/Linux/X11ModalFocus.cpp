#include "Platform/Linux/X11ModalFocus.h"

#include "Platform/ModalWindow.h"
#include "Platform/WindowSystem.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QWindow>

#include <xcb/xcb.h>

namespace lanternix {
namespace {

/// Whether the window manager itself has moved the keyboard, rather than a menu or a key that holds
/// it for a while. A window that has merely the pointer hears as well when nobody has the keyboard.
bool isLasting(const xcb_focus_in_event_t &event) {
  const bool isMove =
      event.mode == XCB_NOTIFY_MODE_NORMAL || event.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
  return isMove && event.detail != XCB_NOTIFY_DETAIL_POINTER;
}

/// Whether \p dialog keeps the window with the number \p id from being used.
bool isBlocking(const QWindow &dialog, WId id) {
  for (const QWindow *owner = dialog.transientParent(); owner != nullptr;
       owner = owner->transientParent()) {
    if (owner->handle() != nullptr && owner->winId() == id) {
      return true;
    }
  }
  return false;
}

}  // namespace

X11ModalFocus::X11ModalFocus(WindowSystem &windowSystem) : m_windowSystem(windowSystem) {
  QCoreApplication::instance()->installNativeEventFilter(this);
}

bool X11ModalFocus::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                      qintptr * /*result*/) {
  constexpr int sentFlag = 0x80;
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  if ((event.response_type & ~sentFlag) != XCB_FOCUS_IN) {
    return false;
  }
  const auto &focus = reinterpret_cast<const xcb_focus_in_event_t &>(event);
  const QPointer<QWindow> dialog = modalWindow();
  if (dialog != nullptr && isLasting(focus) && isBlocking(*dialog, focus.event)) {
    // Later, when the press that has brought the keyboard here has been dealt with.
    QTimer::singleShot(0, this, [this, dialog] {
      if (dialog != nullptr && dialog->isVisible()) {
        m_windowSystem.activate(*dialog);
      }
    });
  }
  return false;
}

}  // namespace lanternix
