#include "Platform/Linux/WaylandWindowSystemFactory.h"
#include "Platform/WindowSystem.h"

namespace lanternix {

// In place of LayerShellWindowSystem.cpp, where the library for it is missing.
std::unique_ptr<WindowSystem> makeLayerShellWindowSystem() {
  return nullptr;
}

}  // namespace lanternix
