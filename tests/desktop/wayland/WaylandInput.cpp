#include "desktop/wayland/WaylandInput.h"

#include "desktop/wayland/InputProtocols.h"
#include "support/HarnessError.h"

#include <QtCore/QFile>
#include <QtCore/QThread>

#include <array>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <wayland-client.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

constexpr char keymapText[] =
    "xkb_keymap { xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
    " xkb_types { include \"complete\" }; xkb_compat { include \"complete\" };"
    " xkb_symbols { include \"pc+us+inet(evdev)\" }; };";

quint32 modifierBit(int key) {
  switch (key) {
    case KEY_LEFTSHIFT:
      return 1U << 0U;
    case KEY_LEFTCTRL:
      return 1U << 2U;
    case KEY_LEFTALT:
      return 1U << 3U;
    case KEY_LEFTMETA:
      return 1U << 6U;
    default:
      return 0;
  }
}

int keyOf(QChar letter) {
  constexpr std::array keys{KEY_A, KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H, KEY_I,
                            KEY_J, KEY_K, KEY_L, KEY_M, KEY_N, KEY_O, KEY_P, KEY_Q, KEY_R,
                            KEY_S, KEY_T, KEY_U, KEY_V, KEY_W, KEY_X, KEY_Y, KEY_Z};
  return keys.at(static_cast<std::size_t>(letter.unicode() - u'a'));
}

template <typename... Arguments>
wl_proxy *request(wl_proxy *object, quint32 opcode, const wl_interface *made,
                  Arguments... arguments) {
  return wl_proxy_marshal_flags(object, opcode, made, wl_proxy_get_version(object), 0,
                                arguments...);
}

}  // namespace

struct WaylandInput::Objects {
  wl_display *display = nullptr;
  wl_proxy *seat = nullptr;
  wl_proxy *keyboardManager = nullptr;
  wl_proxy *pointerManager = nullptr;
  wl_proxy *keyboard = nullptr;
  wl_proxy *pointer = nullptr;
  /// In place of both of them.
  wl_proxy *fakeInput = nullptr;

  static void take(void *data, wl_registry *registry, quint32 name, const char *interface,
                   quint32 /*version*/) {
    auto &objects = *static_cast<Objects *>(data);
    const auto bind = [&](wl_proxy *&object, const wl_interface &wanted, quint32 version = 1) {
      if (object == nullptr && std::strcmp(interface, wanted.name) == 0) {
        object = static_cast<wl_proxy *>(wl_registry_bind(registry, name, &wanted, version));
      }
    };
    bind(objects.seat, wl_seat_interface);
    bind(objects.keyboardManager, InputProtocols::keyboardManager);
    bind(objects.pointerManager, InputProtocols::pointerManager);
    bind(objects.fakeInput, InputProtocols::fakeInput, InputProtocols::fakeInputVersion);
  }
  static void forget(void * /*data*/, wl_registry * /*registry*/, quint32 /*name*/) {}

  void makeDevices() {
    if (fakeInput != nullptr) {
      request(fakeInput, InputProtocols::authenticate, nullptr, "tests", "tests");
      return;
    }
    if (seat == nullptr || keyboardManager == nullptr || pointerManager == nullptr) {
      throw HarnessError(u"the compositor takes no keys and presses from programs"_s);
    }
    keyboard = request(keyboardManager, InputProtocols::createVirtualKeyboard,
                       &InputProtocols::keyboard, seat, nullptr);
    pointer = request(pointerManager, InputProtocols::createVirtualPointer,
                      &InputProtocols::pointer, seat, nullptr);
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    if (write(file, keymapText, sizeof keymapText) != sizeof keymapText) {
      throw HarnessError(u"the keyboard map could not be written"_s);
    }
    request(keyboard, InputProtocols::keymap, nullptr, quint32{WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1},
            file, quint32{sizeof keymapText});
    wl_display_roundtrip(display);
    close(file);
  }
};

WaylandInput::WaylandInput(const QString &socket, QSize screen)
    : m_objects(std::make_unique<Objects>()), m_screen(screen) {
  m_objects->display = wl_display_connect(QFile::encodeName(socket).constData());
  if (m_objects->display == nullptr) {
    throw HarnessError(u"no compositor answers at "_s + socket);
  }
  static constexpr wl_registry_listener listener{Objects::take, Objects::forget};
  wl_registry *registry = wl_display_get_registry(m_objects->display);
  wl_registry_add_listener(registry, &listener, m_objects.get());
  sync();
  wl_registry_destroy(registry);
  m_objects->makeDevices();
  sync();
}

WaylandInput::~WaylandInput() {
  for (wl_proxy *object : {m_objects->keyboard, m_objects->pointer, m_objects->keyboardManager,
                           m_objects->pointerManager, m_objects->fakeInput, m_objects->seat}) {
    if (object != nullptr) {
      wl_proxy_destroy(object);
    }
  }
  wl_display_disconnect(m_objects->display);
}

void WaylandInput::pressKey(int key) {
  this->key(key, true);
}

void WaylandInput::releaseKey(int key) {
  this->key(key, false);
}

void WaylandInput::tap(int key, const QList<int> &modifiers) {
  for (const int modifier : modifiers) {
    pressKey(modifier);
  }
  pressKey(key);
  releaseKey(key);
  for (const int modifier : modifiers) {
    releaseKey(modifier);
  }
}

void WaylandInput::type(const QString &letters) {
  for (const QChar letter : letters) {
    tap(keyOf(letter));
  }
}

void WaylandInput::moveTo(QPoint position) {
  if (m_objects->fakeInput != nullptr) {
    request(m_objects->fakeInput, InputProtocols::pointerMotionAbsolute, nullptr,
            wl_fixed_from_int(position.x()), wl_fixed_from_int(position.y()));
  } else {
    request(m_objects->pointer, InputProtocols::motionAbsolute, nullptr, ++m_time,
            static_cast<quint32>(position.x()), static_cast<quint32>(position.y()),
            static_cast<quint32>(m_screen.width()), static_cast<quint32>(m_screen.height()));
    request(m_objects->pointer, InputProtocols::frame, nullptr);
  }
  sync();
}

void WaylandInput::moveBy(QPoint distance) {
  const wl_fixed_t x = wl_fixed_from_int(distance.x());
  const wl_fixed_t y = wl_fixed_from_int(distance.y());
  if (m_objects->fakeInput != nullptr) {
    request(m_objects->fakeInput, InputProtocols::pointerMotion, nullptr, x, y);
  } else {
    request(m_objects->pointer, InputProtocols::motion, nullptr, ++m_time, x, y);
    request(m_objects->pointer, InputProtocols::frame, nullptr);
  }
  sync();
}

void WaylandInput::pressButton(int button) {
  this->button(button, true);
}

void WaylandInput::releaseButton(int button) {
  this->button(button, false);
}

void WaylandInput::click(QPoint position, int button) {
  moveTo(position);
  pressButton(button);
  releaseButton(button);
}

void WaylandInput::drag(QPoint from, QPoint to) {
  constexpr int steps = 20;
  moveTo(from);
  pressButton();
  QPoint moved;
  for (int step = 1; step <= steps; ++step) {
    const QPoint wanted = (to - from) * step / steps;
    moveBy(wanted - std::exchange(moved, wanted));
    QThread::msleep(2);  // a quick hand
  }
  releaseButton();
}

void WaylandInput::key(int key, bool pressed) {
  const auto code = static_cast<quint32>(key);
  const quint32 state = pressed ? 1 : 0;
  if (m_objects->fakeInput != nullptr) {
    request(m_objects->fakeInput, InputProtocols::keyboardKey, nullptr, code, state);
  } else {
    request(m_objects->keyboard, InputProtocols::key, nullptr, ++m_time, code, state);
    if (const quint32 bit = modifierBit(key)) {
      m_modifiers = pressed ? m_modifiers | bit : m_modifiers & ~bit;
      request(m_objects->keyboard, InputProtocols::modifiers, nullptr, m_modifiers, quint32{0},
              quint32{0}, quint32{0});
    }
  }
  sync();
}

void WaylandInput::button(int button, bool pressed) {
  const auto code = static_cast<quint32>(button);
  const quint32 state = pressed ? 1 : 0;
  if (m_objects->fakeInput != nullptr) {
    request(m_objects->fakeInput, InputProtocols::fakeButton, nullptr, code, state);
  } else {
    request(m_objects->pointer, InputProtocols::button, nullptr, ++m_time, code, state);
    request(m_objects->pointer, InputProtocols::frame, nullptr);
  }
  sync();
}

void WaylandInput::sync() {
  wl_display_roundtrip(m_objects->display);
}

}  // namespace lanternix
