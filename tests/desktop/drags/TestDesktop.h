#pragma once

#include <QtCore/QString>

namespace lanternix {

/// The name of the display that the tests of this program run on.
QString testDisplayName();

}  // namespace lanternix
