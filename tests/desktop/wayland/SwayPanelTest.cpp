#include "desktop/wayland/SwayTest.h"
#include "support/OtherClient.h"

#include <QtCore/QFile>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

using SwayPanelTest = SwayTest;

TEST_F(SwayPanelTest, Start_TakesTheServerForXProgramsAndShowsThePanelInTheMiddle) {
  startProgram();
  savePicture(u"sway-panel"_s);
  EXPECT_EQ((*panel())["shell"_L1].toString(), u"xwayland"_s);
  // Sway puts every floating window of an X program there, wherever that wants to be.
  const QPoint offset = panelGeometry().center() - QRect({}, SwaySession::screenSize).center();
  EXPECT_LE(offset.manhattanLength(), 2);
}

TEST_F(SwayPanelTest, WhatTheProgramStarts_DoesNotInheritThatChoice) {
  startProgram();
  input().type(u"surr"_s);
  input().tap(KEY_ENTER);
  ASSERT_TRUE(waitUntil([this] { return QFile::exists(environmentFile()); }));
  const QByteArray environment = ProgramEnvironment::read(environmentFile()).value_or("");
  EXPECT_FALSE(environment.contains("QT_QPA_PLATFORM"));
  EXPECT_TRUE(environment.contains("WAYLAND_DISPLAY="));
}

TEST_F(SwayPanelTest, UsersOwnChoiceOfTheWindowSystem_Stands) {
  startSession();
  variables().insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
  launch();
  // The panel is no window of sway's where it can be a surface of another kind.
  require(u"the settings"_s, [this] {
    input().tap(KEY_COMMA, {KEY_LEFTCTRL});
    return settings().has_value();
  });
  EXPECT_EQ((*settings())["shell"_L1].toString(), u"xdg_shell"_s);
}

TEST_F(SwayPanelTest, TypedLettersFind_ReturnOpens) {
  startHidden();
  pressShortcut();
  ASSERT_TRUE(becomesShown());
  input().type(u"dep"_s);
  savePicture(u"sway-search"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"deploy"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_FALSE(session->home().isMarked(u"build"_s));
}

TEST_F(SwayPanelTest, PressOnAnotherWindow_HidesThePanel) {
  startSession();
  OtherClient other(session->displayName());  // fills the screen, as windows do in sway
  other.show();
  startHidden();
  pressShortcut();
  ASSERT_TRUE(becomesShown());
  settle();
  session->click({40, 40});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayPanelTest, PressOnTheBareDesktop_HidesThePanel) {
  startProgram();
  settle();
  session->click({5, 5});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayPanelTest, PressOnThePanel_LeavesItShown) {
  startProgram();
  const QRect panel = panelGeometry();
  session->click(panel.topLeft() + QPoint(panel.width() / 2, 60));
  EXPECT_TRUE(staysShown());
}

TEST_F(SwayPanelTest, ContextMenu_LeavesThePanelShown) {
  startProgram();
  input().tap(KEY_DOWN);
  input().tap(KEY_F10, {KEY_LEFTSHIFT});
  EXPECT_TRUE(staysShown());
  savePicture(u"sway-menu"_s);
}

TEST_F(SwayPanelTest, SettingsFromThePanel_HaveTheKeyboard) {
  startProgram();
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  EXPECT_TRUE(waitUntil([this] { return settings() && (*settings())["focused"_L1].toBool(); }));
  EXPECT_TRUE(becomesHidden());
  savePicture(u"sway-settings"_s);
}

}  // namespace
}  // namespace lanternix
