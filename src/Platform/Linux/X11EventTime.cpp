#include "Platform/Linux/X11EventTime.h"

#include <QtCore/QCoreApplication>

#include <xcb/xcb.h>

namespace lanternix {

X11EventTime::X11EventTime() {
  QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11EventTime::note(quint32 serverTime) {
  m_last = serverTime;
  m_age.start();
  m_wasTypedHere = false;
}

bool X11EventTime::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                     qintptr * /*result*/) {
  const auto &event = *static_cast<const xcb_generic_event_t *>(message);
  if (event.response_type == XCB_KEY_PRESS) {
    note(reinterpret_cast<const xcb_key_press_event_t &>(event).time);
    m_wasTypedHere = true;
  }
  return false;
}

}  // namespace lanternix
