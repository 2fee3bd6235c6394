#include "desktop/wayland/VirtualKeyboardProtocol.h"

#include <array>

namespace lanternix::VirtualKeyboardProtocol {
namespace {

/// Of arguments that are plain values.
std::array<const wl_interface *, 4> values{};
std::array<const wl_interface *, 2> creation{&wl_seat_interface, &keyboardInterface};

const std::array<wl_message, 1> managerRequests{
    wl_message{"create_virtual_keyboard", "on", creation.data()}};
const std::array<wl_message, 4> keyboardRequests{
    wl_message{"keymap", "uhu", values.data()}, wl_message{"key", "uuu", values.data()},
    wl_message{"modifiers", "uuuu", values.data()}, wl_message{"destroy", "", values.data()}};

}  // namespace

const wl_interface managerInterface{"zwp_virtual_keyboard_manager_v1",
                                    1,
                                    managerRequests.size(),
                                    managerRequests.data(),
                                    0,
                                    nullptr};
const wl_interface keyboardInterface{"zwp_virtual_keyboard_v1", 1, keyboardRequests.size(),
                                     keyboardRequests.data(),   0, nullptr};

}  // namespace lanternix::VirtualKeyboardProtocol
