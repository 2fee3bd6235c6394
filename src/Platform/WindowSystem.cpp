#include "Platform/WindowSystem.h"

namespace lanternix {

WindowSystem::WindowSystem() = default;

WindowSystem::~WindowSystem() = default;

}  // namespace lanternix
