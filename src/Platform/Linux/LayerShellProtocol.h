#pragma once

#include <QtCore/QtTypes>

struct wl_interface;

namespace lanternix {

/// Objects of the layer shell as the Wayland library wants them described: names, numbers and
/// signatures of the protocol's first version.
namespace LayerShellProtocol {

extern const wl_interface shell;
extern const wl_interface surface;

/// Requests of a shell. Arguments of the first: the new object, the wl_surface, the wl_output or
/// null, the layer, and a name.
inline constexpr quint32 getLayerSurface = 0;

/// Requests of a surface.
inline constexpr quint32 setAnchor = 1;
inline constexpr quint32 destroy = 7;

inline constexpr quint32 overlayLayer = 3;
inline constexpr quint32 everyEdge = 1 | 2 | 4 | 8;

}  // namespace LayerShellProtocol

}  // namespace lanternix
