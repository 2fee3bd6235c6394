#include "desktop/wayland/VirtualKeyboard.h"

#include "desktop/wayland/VirtualKeyboardProtocol.h"
#include "support/HarnessError.h"

#include <QtCore/QFile>

#include <array>
#include <cstring>
#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

constexpr char keymapText[] =
    "xkb_keymap { xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
    " xkb_types { include \"complete\" }; xkb_compat { include \"complete\" };"
    " xkb_symbols { include \"pc+us+inet(evdev)\" }; };";

/// The key's bit among the modifiers; 0 for any other key.
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

int keyOf(QChar character) {
  constexpr std::array keys{KEY_A, KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H, KEY_I,
                            KEY_J, KEY_K, KEY_L, KEY_M, KEY_N, KEY_O, KEY_P, KEY_Q, KEY_R,
                            KEY_S, KEY_T, KEY_U, KEY_V, KEY_W, KEY_X, KEY_Y, KEY_Z};
  return character == u' ' ? KEY_SPACE
                           : keys.at(static_cast<std::size_t>(character.unicode() - u'a'));
}

template <typename... Arguments>
wl_proxy *request(wl_proxy *object, uint32_t opcode, const wl_interface *made,
                  Arguments... arguments) {
  return wl_proxy_marshal_flags(object, opcode, made, 1, 0, arguments...);
}

}  // namespace

struct VirtualKeyboard::Objects {
  wl_display *display = nullptr;
  wl_registry *registry = nullptr;
  wl_proxy *seat = nullptr;
  wl_proxy *manager = nullptr;
  wl_proxy *keyboard = nullptr;

  static void take(void *data, wl_registry *registry, uint32_t name, const char *interface,
                   uint32_t /*version*/) {
    auto &objects = *static_cast<Objects *>(data);
    const auto bind = [&](const wl_interface &wanted) {
      return static_cast<wl_proxy *>(wl_registry_bind(registry, name, &wanted, 1));
    };
    if (std::strcmp(interface, wl_seat_interface.name) == 0) {
      objects.seat = bind(wl_seat_interface);
    } else if (std::strcmp(interface, VirtualKeyboardProtocol::managerInterface.name) == 0) {
      objects.manager = bind(VirtualKeyboardProtocol::managerInterface);
    }
  }
  static void forget(void * /*data*/, wl_registry * /*registry*/, uint32_t /*name*/) {}

  void sendKeymap() const {
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    if (write(file, keymapText, sizeof keymapText) != sizeof keymapText) {
      throw HarnessError(u"the keyboard map could not be written"_s);
    }
    request(keyboard, VirtualKeyboardProtocol::keymap, nullptr,
            uint32_t{WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1}, file, uint32_t{sizeof keymapText});
    wl_display_roundtrip(display);
    close(file);
  }
};

VirtualKeyboard::VirtualKeyboard(const QString &socket) : m_objects(std::make_unique<Objects>()) {
  Objects &objects = *m_objects;
  objects.display = wl_display_connect(QFile::encodeName(socket).constData());
  if (objects.display == nullptr) {
    throw HarnessError(u"no compositor answers at "_s + socket);
  }
  static constexpr wl_registry_listener listener{Objects::take, Objects::forget};
  objects.registry = wl_display_get_registry(objects.display);
  wl_registry_add_listener(objects.registry, &listener, &objects);
  wl_display_roundtrip(objects.display);
  if (objects.seat == nullptr || objects.manager == nullptr) {
    throw HarnessError(u"the compositor takes no virtual keyboard"_s);
  }
  objects.keyboard = request(objects.manager, VirtualKeyboardProtocol::createVirtualKeyboard,
                             &VirtualKeyboardProtocol::keyboardInterface, objects.seat, nullptr);
  objects.sendKeymap();
}

VirtualKeyboard::~VirtualKeyboard() {
  for (wl_proxy *object : {m_objects->keyboard, m_objects->manager, m_objects->seat,
                           reinterpret_cast<wl_proxy *>(m_objects->registry)}) {
    wl_proxy_destroy(object);
  }
  wl_display_disconnect(m_objects->display);
}

void VirtualKeyboard::press(int key) {
  send(key, true);
}

void VirtualKeyboard::release(int key) {
  send(key, false);
}

void VirtualKeyboard::tap(int key, const QList<int> &modifiers) {
  for (const int modifier : modifiers) {
    press(modifier);
  }
  press(key);
  release(key);
  for (const int modifier : modifiers) {
    release(modifier);
  }
}

void VirtualKeyboard::type(const QString &text) {
  for (const QChar character : text) {
    tap(keyOf(character));
  }
}

void VirtualKeyboard::send(int key, bool pressed) {
  const quint32 bit = modifierBit(key);
  m_modifiers = pressed ? m_modifiers | bit : m_modifiers & ~bit;
  ++m_time;
  request(m_objects->keyboard, VirtualKeyboardProtocol::key, nullptr, m_time,
          static_cast<uint32_t>(key),
          uint32_t{pressed ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED});
  if (bit != 0) {
    request(m_objects->keyboard, VirtualKeyboardProtocol::modifiers, nullptr, m_modifiers,
            uint32_t{0}, uint32_t{0}, uint32_t{0});
  }
  wl_display_roundtrip(m_objects->display);
}

}  // namespace lanternix
