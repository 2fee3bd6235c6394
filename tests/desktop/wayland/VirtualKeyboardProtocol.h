#pragma once

#include <wayland-client.h>

namespace lanternix {

/// The requests of the protocol by which a program plays a keyboard ("zwp_virtual_keyboard_v1"), as
/// the library takes their description.
namespace VirtualKeyboardProtocol {

enum ManagerRequest : uint32_t { createVirtualKeyboard };
enum KeyboardRequest : uint32_t { keymap, key, modifiers };

extern const wl_interface managerInterface;
extern const wl_interface keyboardInterface;

}  // namespace VirtualKeyboardProtocol

}  // namespace lanternix
