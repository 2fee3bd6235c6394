// The least that a panel can be: a window that is mapped by the shortcut and unmapped by Escape,
// drawn by the server from a few rectangles. What it needs is what display, window manager and
// machine need by themselves.
#include "support/Keyboard.h"
#include "support/XConnection.h"

#include <X11/keysym.h>
#include <array>

namespace lanternix {
namespace {

constexpr quint16 width = 700;
constexpr quint16 height = 500;

class BareClient {
 public:
  BareClient();
  /// Answers events until the server goes away.
  void run();

 private:
  void nameWindow();
  void handle(const xcb_generic_event_t &event);
  void draw();

  XConnection m_connection{qEnvironmentVariable("DISPLAY")};
  Keyboard m_keyboard{m_connection};
  xcb_keycode_t m_shortcut = m_keyboard.positionOf(XK_space).code;
  xcb_keycode_t m_escape = m_keyboard.positionOf(XK_Escape).code;
  xcb_window_t m_window = xcb_generate_id(m_connection);
  xcb_gcontext_t m_context = xcb_generate_id(m_connection);
  bool m_shown = false;
};

BareClient::BareClient() {
  const std::array<quint32, 2> values{m_connection.screen().white_pixel,
                                      XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_KEY_PRESS};
  xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_connection.root(), 290, 160,
                    width, height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                    XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
  const quint32 foreground = m_connection.screen().black_pixel;
  xcb_create_gc(m_connection, m_context, m_window, XCB_GC_FOREGROUND, &foreground);
  nameWindow();
  xcb_grab_key(m_connection, 0, m_connection.root(), XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT,
               m_shortcut, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  xcb_flush(m_connection);
}

void BareClient::nameWindow() {
  constexpr std::array<char, 10> instanceAndClass{'b', 'a', 'r', 'e', '\0',
                                                  'B', 'a', 'r', 'e', '\0'};
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS,
                      XCB_ATOM_STRING, 8, instanceAndClass.size(), instanceAndClass.data());
  xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window,
                      m_connection.atom("_NET_WM_NAME"), m_connection.atom("UTF8_STRING"), 8, 4,
                      "Bare");
}

void BareClient::run() {
  while (const XReply<xcb_generic_event_t> event{xcb_wait_for_event(m_connection)}) {
    handle(*event);
    xcb_flush(m_connection);
  }
}

void BareClient::handle(const xcb_generic_event_t &event) {
  const int type = event.response_type & 0x7f;
  if (type == XCB_EXPOSE) {
    draw();
  } else if (type == XCB_KEY_PRESS) {
    const xcb_keycode_t key = reinterpret_cast<const xcb_key_press_event_t &>(event).detail;
    if (key == m_shortcut && !m_shown) {
      xcb_map_window(m_connection, m_window);
      m_shown = true;
    } else if (key == m_escape) {
      xcb_unmap_window(m_connection, m_window);
      m_shown = false;
    }
  }
}

void BareClient::draw() {
  constexpr qint16 rowHeight = 48;
  for (qint16 y = 0; y < height; y = static_cast<qint16>(y + rowHeight)) {
    const xcb_rectangle_t bar{20, y, width / 2, rowHeight / 2};
    xcb_poly_fill_rectangle(m_connection, m_window, m_context, 1, &bar);
  }
}

}  // namespace
}  // namespace lanternix

int main() {
  lanternix::BareClient().run();
  return 0;
}
