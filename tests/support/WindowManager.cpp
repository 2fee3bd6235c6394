#include "support/WindowManager.h"

#include "support/HarnessError.h"
#include "support/VirtualDisplay.h"
#include "support/WaitUntil.h"

#include <QtCore/QFile>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

constexpr auto configuration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy></placement>
  <theme><name>Clearlooks</name></theme>
  <desktops><number>2</number><popupTime>0</popupTime></desktops>
  <margins><top>%1</top><bottom>0</bottom><left>0</left><right>0</right></margins>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Right" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)"_L1;

bool isManaged(const XConnection &connection) {
  const xcb_window_t check = connection.number(connection.root(), "_NET_SUPPORTING_WM_CHECK");
  return check != XCB_WINDOW_NONE &&
         connection.number(check, "_NET_SUPPORTING_WM_CHECK") == check &&
         !connection.property(connection.root(), "_NET_WORKAREA").isEmpty();
}

/// Asks for the frame that a window would get, until the answer shows that the window manager's
/// event loop runs. What it reads from the server while it starts can lie unseen until the next
/// event, so that asking once is not enough.
void awaitEventLoop(const XConnection &connection) {
  const xcb_window_t window = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_client_message_event_t question{};
  question.response_type = XCB_CLIENT_MESSAGE;
  question.format = 32;
  question.window = window;
  question.type = connection.atom("_NET_REQUEST_FRAME_EXTENTS");
  require(u"the window manager's answer"_s, [&] {
    xcb_send_event(connection, 0, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&question));
    return !connection.property(window, "_NET_FRAME_EXTENTS").isEmpty();
  });
  xcb_destroy_window(connection, window);
  connection.sync();
}

}  // namespace

WindowManager::WindowManager(const VirtualDisplay &display)
    : m_connection(display.name()), m_process(u"openbox"_s, u"openbox"_s) {
  QFile file(m_home.filePath(u"rc.xml"_s));
  if (!file.open(QIODevice::WriteOnly)) {
    throw HarnessError(file.errorString());
  }
  file.write(QString(configuration).arg(topMargin).toUtf8());
  file.close();

  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"DISPLAY"_s, display.name());
  environment.insert(u"HOME"_s, m_home.path());
  environment.insert(u"XDG_CONFIG_HOME"_s, m_home.path());
  environment.insert(u"XDG_CACHE_HOME"_s, m_home.path());
  environment.insert(u"XDG_DATA_HOME"_s, m_home.path());
  environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
  m_process.start({u"--sm-disable"_s, u"--config-file"_s, file.fileName()}, environment);

  require(u"the window manager"_s, [&] { return isManaged(m_connection); });
  settle();
}

void WindowManager::settle() const {
  awaitEventLoop(m_connection);
}

}  // namespace lanternix
