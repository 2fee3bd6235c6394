#include "Platform/SystemTray.h"

namespace lanternix {

SystemTray::Kind NullSystemTray::kind() const {
  return Kind::none;
}

bool NullSystemTray::isAlwaysDark() const {
  return false;
}

}  // namespace lanternix
