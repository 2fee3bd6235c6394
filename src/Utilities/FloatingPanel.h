#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <memory>

namespace lanternix {

class WindowEdgeResizer;
class WindowSystem;

/// The panel's window: without a title bar, above other windows, on every desktop, in no list of
/// windows. It is moved by its background and resized by its edges, never below 400 × 300. It is
/// built once and only hidden, never closed.
///
/// Its corners are round. Where windows are blended it is translucent (WA_TranslucentBackground)
/// and has a shadow, which is part of the native window but not of the frame; elsewhere its corners
/// are cut off.
class FloatingPanel : public QWidget {
  Q_OBJECT

 public:
  /// Of the frame, in logical pixels.
  static constexpr int cornerRadius = 12;

  explicit FloatingPanel(WindowSystem &windowSystem);
  ~FloatingPanel() override;

  /// Fills the window with \p content and owns it.
  void setContentView(std::unique_ptr<QWidget> content);

  /// The panel without its shadow, on the screen.
  QRect frame() const { return geometry().marginsRemoved(contentsMargins()); }
  /// Moves and resizes the panel so that it takes up \p frame, its shadow lying around that.
  void setFrame(const QRect &frame);

  /// Shows the window in front of all others and gives it the keyboard. Only in answer to an action
  /// of the user.
  void makeKeyAndOrderFront();

  /// Whether the window manager has taken the shown window off the screen, as by making an icon of
  /// it. For isVisible() it has never gone.
  bool isTakenAway() const;

  /// Whether the user holds the background or an edge of the window with the mouse. False for a
  /// drag that the window system carries out itself (WindowSystem::takeDrag).
  bool isInTheUsersHand() const;

  /// Hides the window.
  void orderOut();

 Q_SIGNALS:
  /// The window has got the keyboard.
  void didBecomeKey();
  /// The user has finished resizing the window, by an edge or by the window manager's own means.
  /// The latter cannot be told from a window manager that refuses the panel its size, and do not
  /// count before it has had that or been resized by an edge.
  void didEndLiveResize();
  /// The window manager was asked to close the window, which stays as it is.
  void closeRequested();

 protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void moveEvent(QMoveEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

 private:
  void updateCompositing();
  void updateShape();
  void awaitPlace();
  void confirmPlace();
  void endResizeByManager();
  void endResizeByUser();
  void showAnew();

  WindowSystem &m_windowSystem;
  std::unique_ptr<WindowEdgeResizer> m_edgeResizer;
  /// Runs while a resize that the window manager carries out is under way, which has no end of its
  /// own that a program could see.
  QTimer m_resizePause;
  /// Since it was shown.
  bool m_hasBeenOnScreen = false;
  /// Since it was shown or given a frame.
  bool m_hasBeenSeen = false;
  /// False until the window has, since then, had the size that it was given. What it passes
  /// through on the way is nobody's wish.
  bool m_hasHadItsSize = false;
  /// What it was given, or resized to by the user.
  QRect m_wantedGeometry;
  /// False until the window manager has brought the shown window to its place and said so: until
  /// then its position may be one that it merely passed.
  bool m_isInPlace = false;
  bool m_isDragged = false;
  QPoint m_dragOffset;
};

}  // namespace lanternix
