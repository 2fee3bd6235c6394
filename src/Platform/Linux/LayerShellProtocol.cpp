#include "Platform/Linux/LayerShellProtocol.h"

#include <array>
#include <wayland-client.h>

namespace lanternix::LayerShellProtocol {

namespace {

// The library takes lists of types by pointers to what could change.

/// For arguments that are no objects.
std::array<const wl_interface *, 4> plain{};

const std::array<wl_message, 8> surfaceRequests{{{"set_size", "uu", plain.data()},
                                                 {"set_anchor", "u", plain.data()},
                                                 {"set_exclusive_zone", "i", plain.data()},
                                                 {"set_margin", "iiii", plain.data()},
                                                 {"set_keyboard_interactivity", "u", plain.data()},
                                                 {"get_popup", "o", plain.data()},
                                                 {"ack_configure", "u", plain.data()},
                                                 {"destroy", "", plain.data()}}};
const std::array<wl_message, 2> surfaceEvents{
    {{"configure", "uuu", plain.data()}, {"closed", "", plain.data()}}};

std::array<const wl_interface *, 5> layerSurfaceTypes{&surface, &wl_surface_interface,
                                                      &wl_output_interface, nullptr, nullptr};
const std::array<wl_message, 1> shellRequests{
    {{"get_layer_surface", "no?ous", layerSurfaceTypes.data()}}};

}  // namespace

const wl_interface shell{"zwlr_layer_shell_v1", 1, shellRequests.size(),
                         shellRequests.data(),  0, nullptr};

const wl_interface surface{"zwlr_layer_surface_v1", 1,
                           surfaceRequests.size(),  surfaceRequests.data(),
                           surfaceEvents.size(),    surfaceEvents.data()};

}  // namespace lanternix::LayerShellProtocol
