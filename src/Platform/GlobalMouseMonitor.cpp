#include "Platform/GlobalMouseMonitor.h"

namespace lanternix {

void NullGlobalMouseMonitor::setActive(bool /*active*/) {}

}  // namespace lanternix
