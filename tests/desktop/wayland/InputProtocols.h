#pragma once

#include <QtCore/QtGlobal>

struct wl_interface;

namespace lanternix {

/// The protocols by which a program plays keyboard and mouse, as the Wayland library wants them
/// described. Requests are counted from 0 in the order of their names here.
namespace InputProtocols {

/// zwp_virtual_keyboard_manager_v1
enum KeyboardManagerRequest : quint32 { createVirtualKeyboard };
/// zwp_virtual_keyboard_v1
enum KeyboardRequest : quint32 { keymap, key, modifiers };
/// zwlr_virtual_pointer_manager_v1
enum PointerManagerRequest : quint32 { createVirtualPointer };
/// zwlr_virtual_pointer_v1
enum PointerRequest : quint32 { motion, motionAbsolute, button, axis, frame };
/// org_kde_kwin_fake_input, whose device is the global itself
enum FakeInputRequest : quint32 {
  authenticate,
  pointerMotion,
  fakeButton,
  fakeAxis,
  touchDown,
  touchMotion,
  touchUp,
  touchCancel,
  touchFrame,
  pointerMotionAbsolute,
  keyboardKey
};

extern const wl_interface keyboardManager;
extern const wl_interface keyboard;
extern const wl_interface pointerManager;
extern const wl_interface pointer;
extern const wl_interface fakeInput;

inline constexpr quint32 fakeInputVersion = 4;

}  // namespace InputProtocols

}  // namespace lanternix
