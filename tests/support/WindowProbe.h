#pragma once

#include "support/XConnection.h"

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QStringList>
#include <QtGui/QImage>

#include <optional>

namespace lanternix {

/// Looks at the windows of a display from outside. Every answer is the present one.
class WindowProbe {
 public:
  explicit WindowProbe(const QString &displayName);

  /// The window with this WM_CLASS instance name and title, mapped or not; none before a program
  /// has made one.
  std::optional<xcb_window_t> find(const QString &instanceName, const QString &title) const;

  /// The menus that are open now and belong to a program of this WM_CLASS instance name.
  QList<xcb_window_t> menus(const QString &instanceName) const;

  bool isViewable(xcb_window_t window) const;
  /// Whether the window manager takes the window for shown, and not as an icon.
  bool isInNormalState(xcb_window_t window) const;
  /// The client area on the root window.
  QRect geometry(xcb_window_t window) const;
  /// The window manager's frame around it, or the window itself where it has none.
  QRect frameGeometry(xcb_window_t window) const;
  /// Whether \p upper lies above \p lower.
  bool isAbove(xcb_window_t upper, xcb_window_t lower) const;

  /// Instance and class name.
  QStringList wmClass(xcb_window_t window) const;
  QString title(xcb_window_t window) const;
  /// Names of atoms, such as "_NET_WM_STATE_ABOVE".
  QStringList states(xcb_window_t window) const;
  QStringList types(xcb_window_t window) const;
  /// The desktop's number; 0xFFFFFFFF is all of them.
  quint32 desktop(xcb_window_t window) const;
  /// From WM_NORMAL_HINTS; empty when the window sets none.
  std::optional<QSize> minimumSize(xcb_window_t window) const;
  /// Whether it says itself where it wants to be, so that no placement policy applies.
  bool hasPosition(xcb_window_t window) const;

  /// The window whose descendant, or which itself, has the keyboard.
  bool hasFocus(xcb_window_t window) const;
  /// Whether any window has the keyboard, or the one under the pointer. Else the server throws keys
  /// away, shortcuts too, as for a moment after some window managers have hidden a window.
  bool isKeyboardInUse() const;
  /// As the window manager names it.
  xcb_window_t activeWindow() const;
  /// The windows that the window manager lists for taskbars.
  QList<xcb_window_t> clients() const;
  /// The first desktop's work area.
  QRect workArea() const;

  /// Asks the window manager, as a program does for a window of its own, to put it on top.
  void raise(xcb_window_t window);
  /// Tells the window manager that the window's program has hidden it. Returns once the window
  /// manager has taken it for hidden.
  void withdraw(xcb_window_t window);
  /// Asks the window manager to make an icon of the window, as a person may. Returns once it has.
  void iconify(xcb_window_t window);

  /// The picture of a viewable window as it is on the screen. A null image when there is none.
  QImage grab(xcb_window_t window) const;
  QImage grabRoot() const { return grab(m_connection.root()); }
  /// The picture once it has content and stays the same from one look to the next.
  QImage grabSettled(xcb_window_t window) const;
  /// Whether a picture shows more than one colour; a window that has not drawn yet does not.
  static bool hasContent(const QImage &picture);

  const XConnection &connection() const { return m_connection; }

 private:
  void tellWindowManager(xcb_window_t window, const char *message);
  xcb_window_t focus() const;
  QList<xcb_window_t> children(xcb_window_t window) const;
  xcb_window_t parent(xcb_window_t window) const;
  xcb_window_t topLevel(xcb_window_t window) const;
  QRect rootGeometry(xcb_window_t window) const;
  QStringList atomNames(xcb_window_t window, const char *property) const;

  XConnection m_connection;
};

}  // namespace lanternix
