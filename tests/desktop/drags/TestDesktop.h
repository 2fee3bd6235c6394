#pragma once

#include <QtCore/QString>

namespace lanternix {

class WindowManager;

/// The name of the display that the tests of this program run on, and its window manager.
QString testDisplayName();
const WindowManager &testWindowManager();

}  // namespace lanternix
