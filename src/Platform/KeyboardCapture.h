#pragma once

class QWindow;

namespace lanternix {

/// While \p captured, \p window, which has the keyboard, gets every key, also the combinations that
/// other programs hold, where the window system lets it. Windows can still take the keyboard away.
/// No screen can be locked meanwhile on some of them: for as long as the user enters keys.
void setKeyboardCaptured(QWindow &window, bool captured);

}  // namespace lanternix
