#pragma once

class QWindow;

namespace lanternix {

/// The modal window that the user can answer: a question or an editor, under which other windows
/// may not have the keyboard. The desktop's own file dialog leaves an invisible modal window, which
/// stands for the one that it was opened from. Null when there is none.
QWindow *modalWindow();

}  // namespace lanternix
