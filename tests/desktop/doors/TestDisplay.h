#pragma once

#include "support/VirtualDisplay.h"

namespace lanternix {

/// The display that the tests of this program run on, made before Qt connects to it.
const VirtualDisplay &testDisplay();

}  // namespace lanternix
