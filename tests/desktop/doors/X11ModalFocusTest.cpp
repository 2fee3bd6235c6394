#include "Platform/Linux/QtWindowSystem.h"
#include "Platform/Linux/X11ModalFocus.h"
#include "Platform/Linux/X11Server.h"
#include "TestDisplay.h"
#include "support/InputDriver.h"
#include "support/WaitUntil.h"
#include "support/WindowProbe.h"

#include <QtGui/QRasterWindow>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

/// Counts what it is asked for, and does it.
class CountingWindowSystem : public QtWindowSystem {
 public:
  void activate(QWindow &window) override {
    ++activations;
    QtWindowSystem::activate(window);
  }
  int activations = 0;
};

/// A window that waits for the answer of a dialog, without a window manager.
class X11ModalFocusTest : public testing::Test {
 protected:
  X11ModalFocusTest() {
    owner.setGeometry(100, 100, 300, 200);
    owner.show();
    dialog.setGeometry(600, 100, 300, 200);
    dialog.setTransientParent(&owner);
    dialog.setModality(Qt::WindowModal);
    dialog.show();
    require(QStringLiteral("both windows"), [this] {
      return windows.isViewable(native(owner)) && windows.isViewable(native(dialog));
    });
  }

  static xcb_window_t native(const QWindow &window) {
    return static_cast<xcb_window_t>(window.winId());
  }
  void giveKeyboardTo(xcb_window_t window) const {
    xcb_set_input_focus(server.connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window,
                        XCB_CURRENT_TIME);
    xcb_flush(server.connection());
  }

  X11Server server;
  InputDriver input{testDisplay().name()};
  WindowProbe windows{testDisplay().name()};
  QRasterWindow owner;
  QRasterWindow dialog;
  CountingWindowSystem windowSystem;
  X11ModalFocus modalFocus{windowSystem};
};

TEST_F(X11ModalFocusTest, KeyboardForTheOwner_IsHandedToTheDialog) {
  giveKeyboardTo(native(owner));
  EXPECT_TRUE(waitUntil([this] { return windows.hasFocus(native(dialog)); }));
}

TEST_F(X11ModalFocusTest, PointerOverTheOwnerWhileNobodyHasTheKeyboard_IsNotTheKeyboard) {
  giveKeyboardTo(native(dialog));
  ASSERT_TRUE(waitUntil([this] { return windows.hasFocus(native(dialog)); }));
  input.moveTo(owner.geometry().center());
  windowSystem.activations = 0;
  giveKeyboardTo(XCB_INPUT_FOCUS_POINTER_ROOT);
  giveKeyboardTo(native(owner));
  ASSERT_TRUE(waitUntil([this] { return windowSystem.activations > 0; }));
  ASSERT_TRUE(waitUntil([this] { return windows.hasFocus(native(dialog)); }));
  EXPECT_EQ(windowSystem.activations, 1);
}

}  // namespace
}  // namespace lanternix
