#include "Platform/SystemTray.h"

namespace lanternix {

SystemTray::Kind NullSystemTray::kind() const {
  return Kind::none;
}

}  // namespace lanternix
