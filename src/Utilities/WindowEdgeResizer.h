#pragma once

#include <QtCore/QMargins>
#include <QtCore/QObject>
#include <QtCore/QRect>

class QMouseEvent;
class QWindow;

namespace lanternix {

class WindowSystem;

/// Lets the user resize a window without a frame by its edges and corners. It takes the mouse
/// events along the edges before the window's own content sees them.
class WindowEdgeResizer : public QObject {
  Q_OBJECT

 public:
  WindowEdgeResizer(WindowSystem &windowSystem, QWindow &window);
  ~WindowEdgeResizer() override;

  /// What of the window lies outside its edges, in logical pixels; nothing at first.
  void setMargins(const QMargins &margins) { m_margins = margins; }

  /// Whether the user holds an edge that the program itself moves.
  bool isResizing() const { return m_resizing; }

  /// The edges at a position in the window, in logical pixels; none inside.
  Qt::Edges edgesAt(const QPoint &position) const;

 Q_SIGNALS:
  /// The user has let go of an edge, or the window has been hidden meanwhile, and the size has
  /// changed. Not told of a resize that the window system has carried out.
  void finished();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  bool press(const QMouseEvent &event);
  bool move(const QMouseEvent &event);
  bool release(const QMouseEvent &event);
  void endResizing();
  void showCursor(Qt::Edges edges);
  QRect resized(const QPoint &distance) const;

  WindowSystem &m_windowSystem;
  QWindow &m_window;
  QMargins m_margins;
  bool m_tookPress = false;
  bool m_resizing = false;
  bool m_showsCursor = false;
  Qt::Edges m_edges;
  QPoint m_pressPosition;
  QRect m_pressGeometry;
};

}  // namespace lanternix
