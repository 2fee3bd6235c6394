#pragma once

#include <QtCore/QMargins>
#include <QtCore/QObject>
#include <QtCore/QRect>

class QMouseEvent;
class QScreen;
class QWindow;

namespace lanternix {

struct ActivationToken;

/// What the panel asks of the window system beyond an ordinary window.
class WindowSystem : public QObject {
  Q_OBJECT

 public:
  WindowSystem();
  ~WindowSystem() override;

  /// The screen that the user works on: that of the active window where it can be told, else the
  /// one under the pointer, else the primary one. Null only without any screen.
  virtual QScreen *activeScreen() const = 0;

  /// Where a panel on \p screen, or on the one that the system puts it on, may go: what the
  /// desktop's own bars leave of it, in the coordinates of windows' geometries.
  virtual QRect workArea(const QScreen &screen) const = 0;

  /// The program is about to answer a request of the user's that came with \p token: by the next
  /// activate(), or by the next prepareHiding(). The answer uses the token up.
  virtual void noteRequest(const ActivationToken &token) = 0;

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

  /// Whether \p window, which has been on the screen since it was shown, still is. False when the
  /// window manager has made an icon of it or lost it; true where that cannot be told.
  virtual bool isOnScreen(const QWindow &window) const = 0;

  /// Begins a drag by the mouse, which has just been pressed at \p position in \p window: of its
  /// \p edges, or of all of it when those are none. True when the window system carries it out;
  /// else the program follows pointerPosition() and calls setGeometry().
  virtual bool takeDrag(QWindow &window, Qt::Edges edges, QPoint position) = 0;

  /// Moves and resizes \p window, some window systems only with the next picture that it gets.
  virtual void setGeometry(QWindow &window, const QRect &geometry) = 0;

  /// Where the mouse was at an \p event of a drag, in the coordinates of windows' geometries.
  virtual QPoint pointerPosition(const QMouseEvent &event) const = 0;

  /// Whether windows are blended with what is below them, so that they may have soft edges.
  virtual bool isComposited() const = 0;

  /// What a window has around itself, all in logical pixels.
  struct Frame {
    /// Of the window proper.
    QSize size;
    int cornerRadius = 0;
    QMargins shadow;

    friend bool operator==(const Frame &, const Frame &) = default;
  };

  /// Says what of \p window is the window proper, and what only its shadow: pressing there meets
  /// what is below. What shows through the frame is blurred where that is offered. Without a shadow
  /// the corners are cut off. To be told anew when the window's size or scale changes.
  virtual void setFrame(QWindow &window, const Frame &frame) = 0;

 Q_SIGNALS:
  /// The window manager has lost the panel that should be shown: it has to be shown anew.
  void panelLost();
  void compositingChanged();
};

}  // namespace lanternix
