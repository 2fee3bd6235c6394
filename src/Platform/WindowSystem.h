#pragma once

class QScreen;
class QWindow;

namespace lanternix {

/// What the panel asks of the window system beyond an ordinary window.
class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  /// The screen that holds the active window, else the one under the pointer, else the primary
  /// one. Null only without any screen.
  virtual QScreen *activeScreen() const = 0;

  /// Marks \p window, which is not shown yet, as a panel: above other windows, on every desktop, in
  /// no taskbar, pager or window list. Window systems forget these marks when a window is hidden,
  /// so call it before every show.
  virtual void preparePanel(QWindow &window) = 0;

  /// Call it before hiding \p window: window systems lose track of a window that is taken away
  /// while they are still bringing it up.
  virtual void prepareHiding(QWindow &window) = 0;

  /// Brings the shown \p window to the front and gives it the keyboard, also where the window
  /// manager guards against focus stealing: call it only in answer to an action of the user.
  virtual void activate(QWindow &window) = 0;
};

}  // namespace lanternix
