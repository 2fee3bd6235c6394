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

void setFocus(const X11Server &server, xcb_window_t window) {
  xcb_set_input_focus(server.connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
  xcb_flush(server.connection());
}

/// Counts what it is asked for, and does it at once. Qt would ask as of the last event that it has
/// seen, which the server refuses when the keyboard has changed hands since.
class CountingWindowSystem : public QtWindowSystem {
 public:
  explicit CountingWindowSystem(const X11Server &server) : m_server(server) {}

  void activate(QWindow &window) override {
    ++activations;
    setFocus(m_server, static_cast<xcb_window_t>(window.winId()));
  }
  int activations = 0;

 private:
  const X11Server &m_server;
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
  void giveKeyboardTo(xcb_window_t window) const { setFocus(server, window); }

  X11Server server;
  InputDriver input{testDisplay().name()};
  WindowProbe windows{testDisplay().name()};
  QRasterWindow owner;
  QRasterWindow dialog;
  CountingWindowSystem windowSystem{server};
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
