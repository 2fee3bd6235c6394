#pragma once

#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/Linux/X11Atoms.h"
#include "Platform/Linux/X11Compositor.h"
#include "Platform/Linux/X11PanelWatch.h"
#include "Platform/Linux/X11ServerTime.h"
#include "Platform/Linux/X11StartupNotification.h"
#include "Platform/Linux/X11WindowManager.h"

#include <QtCore/QRect>

#include <optional>

namespace lanternix {

class X11EventTime;
class X11KeyboardHold;

/// Speaks to the window manager by the Extended Window Manager Hints, and to the server itself
/// where there is no window manager.
class X11WindowSystem : public QtWindowSystem {
  Q_OBJECT

 public:
  X11WindowSystem(const X11Server &server, X11EventTime &eventTime, X11KeyboardHold &keyboardHold);

  QScreen *activeScreen() const override;
  QRect workArea(const QScreen &screen) const override;
  void noteRequest(const ActivationToken &token) override;
  void preparePanel(QWindow &window) override;
  void prepareHiding(QWindow &window) override;
  void activate(QWindow &window) override;
  bool isOnScreen(const QWindow &window) const override;
  bool isComposited() const override { return m_compositor.isRunning(); }
  void setFrame(QWindow &window, const Frame &frame) override;

 private:
  std::optional<QPoint> activeWindowCentre() const;
  bool isViewable(xcb_window_t window) const;
  bool hasProgramFocus() const;
  bool hasUserActedSince() const;
  void restore(QWindow &panel);
  void setMarks(xcb_window_t window);
  void raiseAndFocus(xcb_window_t window);
  void askForActivation(xcb_window_t window);
  quint32 userTime();
  const X11ServerTime &serverTime();
  void setUserTime(xcb_window_t window, quint32 time);
  void addMarks(xcb_window_t window);

  const X11Server &m_server;
  X11EventTime &m_eventTime;
  X11KeyboardHold &m_keyboardHold;
  /// Made when the program has started, or when it is needed before.
  std::optional<X11ServerTime> m_serverTime;
  X11Atoms m_atoms;
  const X11WindowManager m_windowManager{m_server, m_atoms};
  X11StartupNotification m_startupNotification{m_server, m_atoms};
  X11Compositor m_compositor;
  X11PanelWatch m_panelWatch{m_atoms};
  /// The panel, or its keyboard, since it was last hidden.
  bool m_hasBeenLost = false;
  /// The window prepared last.
  xcb_window_t m_panel = XCB_WINDOW_NONE;
  /// Of the action for which it was last to have the keyboard.
  quint32 m_panelTime = 0;
};

}  // namespace lanternix
