#pragma once

#include "Platform/ActivationToken.h"
#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/X11KeyboardHold.h"
#include "Platform/Linux/X11WindowSystem.h"
#include "TestDisplay.h"
#include "support/InputDriver.h"
#include "support/WaitUntil.h"
#include "support/WindowManager.h"
#include "support/WindowProbe.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QRasterWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {

/// A window made like the panel, which keeps what is typed into it.
class PanelLikeWindow : public QRasterWindow {
 public:
  PanelLikeWindow() {
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setGeometry(400, 300, 300, 200);
    create();
  }
  QString typed;

 protected:
  void keyPressEvent(QKeyEvent *event) override { typed += event->text(); }
};

/// The door to an X server's windows, with a panel to show.
class X11WindowSystemTest : public testing::Test {
 protected:
  void showPanel() {
    windowSystem.preparePanel(panel);
    panel.show();
    windowSystem.activate(panel);
  }
  void hidePanel() {
    windowSystem.prepareHiding(panel);
    panel.hide();
  }
  xcb_window_t native() const { return static_cast<xcb_window_t>(panel.winId()); }

  X11Server server;
  X11EventTime eventTime;
  X11KeyboardHold keyboardHold{server};
  X11WindowSystem windowSystem{server, eventTime, keyboardHold};
  InputDriver input{testDisplay().name()};
  WindowProbe windows{testDisplay().name()};
  PanelLikeWindow panel;
};

/// The same under a window manager.
class ManagedX11WindowSystemTest : public X11WindowSystemTest {
 protected:
  /// What this window manager leaves of a panel's marks: it knows stickiness as a desktop alone.
  bool isMarkedAsPanel() const {
    const QStringList states = windows.states(native());
    return states.contains(QStringLiteral("_NET_WM_STATE_ABOVE")) &&
           states.contains(QStringLiteral("_NET_WM_STATE_SKIP_TASKBAR")) &&
           states.contains(QStringLiteral("_NET_WM_STATE_SKIP_PAGER")) &&
           windows.desktop(native()) == 0xFFFFFFFF && windows.isViewable(native());
  }

  WindowManager windowManager{testDisplay()};
};

}  // namespace lanternix
