#include "support/InputDriver.h"

#include "support/HarnessError.h"
#include "support/WindowManager.h"

#include <X11/keysym.h>
#include <xcb/xtest.h>

namespace lanternix {

using namespace Qt::StringLiterals;

InputDriver::InputDriver(const QString &displayName, const WindowManager *manager)
    : m_connection(displayName), m_manager(manager) {
  const XReply<xcb_test_get_version_reply_t> reply(
      xcb_test_get_version_reply(m_connection, xcb_test_get_version(m_connection, 2, 2), nullptr));
  if (!reply) {
    throw HarnessError(u"the display has no XTest extension"_s);
  }
  refreshKeyboard();
}

InputDriver::~InputDriver() {
  while (!m_heldKeys.isEmpty()) {
    send(XCB_KEY_RELEASE, m_heldKeys.takeLast());
  }
  while (!m_heldButtons.isEmpty()) {
    send(XCB_BUTTON_RELEASE, m_heldButtons.takeLast());
  }
}

void InputDriver::refreshKeyboard() {
  m_keyboard = std::make_unique<Keyboard>(m_connection);
}

void InputDriver::press(xcb_keysym_t key) {
  const xcb_keycode_t code = m_keyboard->positionOf(key).code;
  m_heldKeys.append(code);
  send(XCB_KEY_PRESS, code);
}

void InputDriver::pressAndFlush(xcb_keysym_t key) {
  const xcb_keycode_t code = m_keyboard->positionOf(key).code;
  m_heldKeys.append(code);
  sendAndFlush(XCB_KEY_PRESS, code, {});
}

void InputDriver::release(xcb_keysym_t key) {
  const xcb_keycode_t code = m_keyboard->positionOf(key).code;
  m_heldKeys.removeOne(code);
  send(XCB_KEY_RELEASE, code);
}

void InputDriver::tap(xcb_keysym_t key, const QList<xcb_keysym_t> &modifiers) {
  for (const xcb_keysym_t modifier : modifiers) {
    press(modifier);
  }
  press(key);
  release(key);
  for (auto modifier = modifiers.crbegin(); modifier != modifiers.crend(); ++modifier) {
    release(*modifier);
  }
}

void InputDriver::type(const QString &text) {
  constexpr xcb_keysym_t unicodeBase = 0x01000000;
  constexpr char32_t lastLatin1 = 0xff;
  const QList<uint> characters = text.toUcs4();
  for (const uint character : characters) {
    const xcb_keysym_t key = character <= lastLatin1 ? character : unicodeBase + character;
    tap(key, m_keyboard->positionOf(key).shifted ? QList<xcb_keysym_t>{XK_Shift_L}
                                                 : QList<xcb_keysym_t>{});
  }
}

void InputDriver::moveTo(QPoint position) {
  send(XCB_MOTION_NOTIFY, 0, position);
}

void InputDriver::pressButton(quint8 button) {
  m_heldButtons.append(button);
  send(XCB_BUTTON_PRESS, button);
  // The others turn the wheel, which no window manager waits for.
  constexpr quint8 lastThatClicks = 3;
  if (m_manager != nullptr && button <= lastThatClicks) {
    m_manager->settle();
  }
}

void InputDriver::releaseButton(quint8 button) {
  m_heldButtons.removeOne(button);
  send(XCB_BUTTON_RELEASE, button);
}

void InputDriver::click(QPoint position, quint8 button) {
  moveTo(position);
  pressButton(button);
  releaseButton(button);
}

void InputDriver::drag(QPoint from, QPoint to, quint8 button) {
  constexpr int steps = 8;
  moveTo(from);
  pressButton(button);
  for (int step = 1; step <= steps; ++step) {
    moveTo(from + (to - from) * step / steps);
  }
  releaseButton(button);
}

void InputDriver::send(quint8 eventType, quint8 detail, QPoint position) {
  sendAndFlush(eventType, detail, position);
  m_connection.sync();
}

void InputDriver::sendAndFlush(quint8 eventType, quint8 detail, QPoint position) {
  xcb_test_fake_input(m_connection, eventType, detail, XCB_CURRENT_TIME, m_connection.root(),
                      static_cast<qint16>(position.x()), static_cast<qint16>(position.y()), 0);
  xcb_flush(m_connection);
}

}  // namespace lanternix
