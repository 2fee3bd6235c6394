#include "Platform/Linux/WaylandWindowSystemFactory.h"

#include "Platform/Linux/WaylandWindowSystem.h"

namespace lanternix {

std::unique_ptr<WindowSystem> makeWaylandWindowSystem() {
  if (std::unique_ptr<WindowSystem> layers = makeLayerShellWindowSystem()) {
    return layers;
  }
  return std::make_unique<WaylandWindowSystem>();
}

}  // namespace lanternix
