// What becomes of a panel that the window manager or the user takes away.
#include "WindowSystemTest.h"
#include "support/OtherClient.h"

#include <array>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class LostPanelTest : public ManagedX11WindowSystemTest {
 protected:
  /// As a window manager does that has made up its mind about the panel.
  void writeNormalState() {
    const XConnection &connection = windows.connection();
    constexpr std::array<quint32, 2> normal{1, XCB_WINDOW_NONE};
    const xcb_atom_t state = connection.atom("WM_STATE");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, native(), state, state, 32,
                        normal.size(), normal.data());
    connection.sync();
  }
};

TEST_F(LostPanelTest, PanelMadeAnIcon_IsNotOnTheScreen) {
  showPanel();
  EXPECT_TRUE(waitUntil([&] { return windowSystem.isOnScreen(panel); }));
  windows.iconify(native());
  EXPECT_TRUE(waitUntil([&] { return !windowSystem.isOnScreen(panel); }));
}

TEST_F(LostPanelTest, PanelTakenAwaySoonAfterAHiding_IsLostOnce) {
  int losses = 0;
  QObject::connect(&windowSystem, &WindowSystem::panelLost, [&] { ++losses; });
  showPanel();
  hidePanel();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windowSystem.isOnScreen(panel); }));
  windows.iconify(native());
  EXPECT_TRUE(waitUntil([&] { return losses == 1; }));
  panel.hide();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
  // Longer than the window manager is given to make up its mind.
  waitUntil([] { return false; }, std::chrono::milliseconds(300));
  windows.iconify(native());
  ASSERT_TRUE(waitUntil([&] { return !windowSystem.isOnScreen(panel); }));
  EXPECT_FALSE(waitUntil([&] { return losses > 1; }, std::chrono::milliseconds(300)))
      << "though a person did it";
}

TEST_F(LostPanelTest, KeyboardThatTheUserTakesElsewhereRightAfterAShow_StaysThere) {
  OtherClient other(testDisplay().name());
  other.show();
  showPanel();
  hidePanel();
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
  eventTime.note(XConnection(testDisplay().name()).time());  // of a press
  other.takeFocus();
  writeNormalState();
  // Longer than the window manager is given to make up its mind.
  EXPECT_FALSE(waitUntil([&] { return !other.hasFocus(); }, std::chrono::milliseconds(300)));
}

TEST_F(LostPanelTest, KeyboardThatTheWindowManagerGivesElsewhereWhileTheUserTypes_ComesBack) {
  OtherClient other(testDisplay().name());
  other.show();
  showPanel();
  hidePanel();
  eventTime.note(XConnection(testDisplay().name()).time());  // of the shortcut
  showPanel();
  ASSERT_TRUE(waitUntil([&] { return panel.isActive(); }));
  input.type(u"x"_s);
  ASSERT_TRUE(waitUntil([&] { return panel.typed == u"x"_s; }));
  other.takeFocus();
  writeNormalState();
  EXPECT_TRUE(waitUntil([&] { return windows.hasFocus(native()); }));
}

}  // namespace
}  // namespace lanternix
