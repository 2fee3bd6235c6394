#pragma once

class QWindow;

namespace lanternix {

/// While \p captured, \p window, which has the keyboard, gets every key, also the combinations that
/// other programs hold, where the window system lets it; what it refuses goes to the log. Windows
/// can still take the keyboard away. On some systems no screen can be locked meanwhile, so keep it
/// short.
void setKeyboardCaptured(QWindow &window, bool captured);

}  // namespace lanternix
