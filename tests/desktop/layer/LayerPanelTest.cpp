#include "desktop/layer/LayerPanelTest.h"

#include "desktop/PortalService.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using Compositor = LayerSession::Compositor;

TEST_P(LayerPanelTest, Panel_StandsSixtyPixelsAboveTheMiddleOfTheWorkArea) {
  start();
  EXPECT_EQ(frame(), centred({700, 500}));
  savePicture(u"panel"_s);
}

TEST_P(LayerPanelTest, AtTwiceTheScale_ThePanelStandsThereToo) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "inside another screen, this compositor has no scale";
  }
  start(2);
  EXPECT_EQ(frame(), centred({700, 500}));
  savePicture(u"panel-2x"_s);
}

TEST_P(LayerPanelTest, StoredSize_IsKept) {
  start(1, "panelWidth=820\npanelHeight=420");
  EXPECT_EQ(frame(), centred({820, 420}));
}

TEST_P(LayerPanelTest, Panel_HasTheKeyboardAtOnce) {
  start();
  input().type(u"dep"_s);
  savePicture(u"search"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"deploy"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_FALSE(session->home().isMarked(u"build"_s));
}

TEST_P(LayerPanelTest, HiddenAndShownAgain_ThePanelStandsThereWithTheKeyboard) {
  start();
  for (int round = 0; round < 3; ++round) {
    input().tap(KEY_ESC);
    ASSERT_TRUE(becomesHidden());
    showAgain();
    EXPECT_EQ(frame(), centred({700, 500}));
  }
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_P(LayerPanelTest, ContextMenu_LeavesThePanelShown_AndIsUsable) {
  start();
  openMenu(frame());
  savePicture(u"menu"_s);
  EXPECT_TRUE(isShown());
  input().tap(KEY_DOWN);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(waitUntil([this] { return !session->home().item(u"build Copy"_s).isEmpty(); }));
}

TEST_P(LayerPanelTest, UnpluggedScreen_HidesThePanel_WhichComesBackOnAnother) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "inside another screen, this compositor has but one";
  }
  start();
  input().tap(KEY_ESC);
  ASSERT_TRUE(becomesHidden());
  session->plugScreen();
  showAgain();
  session->unplugScreen();
  ASSERT_TRUE(becomesHidden());
  showAgain();
  EXPECT_EQ(frame(), centred({700, 500}));
}

TEST_P(LayerPanelTest, DarkDesktop_MakesPanelMenuAndSettingsDark) {
  session = std::make_unique<LayerSession>(GetParam());
  PortalService portal(session->bus().address(),
                       {{u"org.freedesktop.appearance"_s, {{u"color-scheme"_s, 1U}}}});
  writeGroups();
  program = run();
  const QRect panel = centred({700, 500});
  const auto ground = [&] { return session->picture().pixelColor(panel.center()); };
  EXPECT_TRUE(waitUntil([&] { return qGray(ground().rgb()) > 30 && qGray(ground().rgb()) < 60; }));
  savePicture(u"panel-dark"_s);
  openMenu(panel);
  savePicture(u"menu-dark"_s);
  input().tap(KEY_ESC);
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  EXPECT_TRUE(
      waitUntil([&] { return ground() == QColor(0x262629) || ground() == QColor(0x1E1E1E); }));
  savePicture(u"settings-dark"_s);
}

TEST_P(LayerPanelTest, PressOnAnotherWindow_HidesThePanel) {
  if (GetParam() == Compositor::sway) {
    GTEST_SKIP() << "while the panel is there, a press on no window takes the keyboard here";
  }
  startOverTerminal(u"--maximized"_s);
  settledPicture();
  input().click({60, 700});
  EXPECT_TRUE(becomesHidden());
}

TEST_P(LayerPanelTest, OverAFullScreenWindow_ThePanelIsSeenAndHasTheKeyboard) {
  startOverTerminal(u"--fullscreen"_s);
  savePicture(u"over-full-screen"_s);
  input().type(u"dep"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"deploy"_s));
}

TEST_P(LayerPanelTest, AnotherWorkspace_HasThePanelWithTheKeyboardToo) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "inside another screen, this compositor has but one";
  }
  startOverTerminal(u"--maximized"_s);
  const QRect panel = frame();
  session->switchWorkspace();
  settledPicture();
  EXPECT_EQ(frame(), panel);
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_P(LayerPanelTest, Shortcut_HidesAndShowsThePanel_WhichTakesTheLettersThatFollow) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "this compositor has no door for shortcuts but the portal";
  }
  start();
  const auto pressShortcut = [this] { input().tap(KEY_SPACE, {KEY_LEFTMETA, KEY_LEFTSHIFT}); };
  for (int round = 0; round < 3; ++round) {
    pressShortcut();
    ASSERT_TRUE(becomesHidden());
    pressShortcut();
    require(u"the panel"_s, [this] { return isShown(); });
  }
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_P(LayerPanelTest, SettingsFromThePanel_HaveTheKeyboard) {
  start();
  const QRect panel = frame();
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  ASSERT_TRUE(waitUntil([&] { return isShown() && frame() != panel; }));
  savePicture(u"settings"_s);
  input().tap(KEY_W, {KEY_LEFTCTRL});
  EXPECT_TRUE(becomesHidden());
}

INSTANTIATE_TEST_SUITE_P(On, LayerPanelTest, everyLayerCompositor(), layerCompositorOf);

}  // namespace
}  // namespace lanternix
