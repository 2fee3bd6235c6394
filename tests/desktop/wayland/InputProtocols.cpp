#include "desktop/wayland/InputProtocols.h"

#include <array>
#include <wayland-client.h>

namespace lanternix::InputProtocols {

namespace {

// The library takes lists of types by pointers to what could change.
std::array<const wl_interface *, 5> plain{};
std::array<const wl_interface *, 2> keyboardTypes{&wl_seat_interface, &keyboard};
std::array<const wl_interface *, 2> pointerTypes{&wl_seat_interface, &pointer};

const std::array<wl_message, 1> keyboardManagerRequests{
    {{"create_virtual_keyboard", "on", keyboardTypes.data()}}};
const std::array<wl_message, 3> keyboardRequests{{{"keymap", "uhu", plain.data()},
                                                  {"key", "uuu", plain.data()},
                                                  {"modifiers", "uuuu", plain.data()}}};
const std::array<wl_message, 1> pointerManagerRequests{
    {{"create_virtual_pointer", "?on", pointerTypes.data()}}};
const std::array<wl_message, 5> pointerRequests{{{"motion", "uff", plain.data()},
                                                 {"motion_absolute", "uuuuu", plain.data()},
                                                 {"button", "uuu", plain.data()},
                                                 {"axis", "uuf", plain.data()},
                                                 {"frame", "", plain.data()}}};
const std::array<wl_message, 11> fakeInputRequests{
    {{"authenticate", "ss", plain.data()},
     {"pointer_motion", "ff", plain.data()},
     {"button", "uu", plain.data()},
     {"axis", "uf", plain.data()},
     {"touch_down", "2uff", plain.data()},
     {"touch_motion", "2uff", plain.data()},
     {"touch_up", "2u", plain.data()},
     {"touch_cancel", "2", plain.data()},
     {"touch_frame", "2", plain.data()},
     {"pointer_motion_absolute", "3ff", plain.data()},
     {"keyboard_key", "4uu", plain.data()}}};

}  // namespace

const wl_interface keyboardManager{
    "zwp_virtual_keyboard_manager_v1", 1, keyboardManagerRequests.size(),
    keyboardManagerRequests.data(),    0, nullptr};
const wl_interface keyboard{"zwp_virtual_keyboard_v1", 1, keyboardRequests.size(),
                            keyboardRequests.data(),   0, nullptr};
const wl_interface pointerManager{
    "zwlr_virtual_pointer_manager_v1", 1, pointerManagerRequests.size(),
    pointerManagerRequests.data(),     0, nullptr};
const wl_interface pointer{"zwlr_virtual_pointer_v1", 1, pointerRequests.size(),
                           pointerRequests.data(),    0, nullptr};
const wl_interface fakeInput{"org_kde_kwin_fake_input",
                             fakeInputVersion,
                             fakeInputRequests.size(),
                             fakeInputRequests.data(),
                             0,
                             nullptr};

}  // namespace lanternix::InputProtocols
