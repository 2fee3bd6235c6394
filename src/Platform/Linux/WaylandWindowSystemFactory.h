#pragma once

#include <memory>

namespace lanternix {

class WindowSystem;

/// The best window system for the compositor that Qt is connected to: its layer shell, or ordinary
/// windows.
std::unique_ptr<WindowSystem> makeWaylandWindowSystem();

/// The one that uses the compositor's layer shell. Null where the compositor has none, and where
/// the program was built without the library for it.
std::unique_ptr<WindowSystem> makeLayerShellWindowSystem();

}  // namespace lanternix
