#include "Platform/Linux/X11EventTime.h"

#include <QtCore/QCoreApplication>

#include <xcb/xcb.h>

namespace lanternix {

X11EventTime::X11EventTime() {
  QCoreApplication::instance()->installNativeEventFilter(this);
}

/// Keys that are held on the whole display do not get here: the filter of the door that holds them
/// is installed later, comes first and keeps them.
bool X11EventTime::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                     qintptr * /*result*/) {
  if (static_cast<const xcb_generic_event_t *>(message)->response_type == XCB_KEY_PRESS) {
    forget();
  }
  return false;
}

}  // namespace lanternix
