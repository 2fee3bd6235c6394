#include "desktop/SettingsWindowTest.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using State = AccessibilityBus::State;

TEST_F(SettingsWindowTest, ControlComma_OpensTheSettingsAndHidesThePanel) {
  start(commands({u"Build"_s}));
  input().tap(XK_comma, {XK_Control_L});
  EXPECT_TRUE(becomeActive());
  EXPECT_FALSE(isShown());
}

TEST_F(SettingsWindowTest, CommandComma_OpensTheSettingsAndHidesThePanel) {
  start(commands({u"Build"_s}));
  input().tap(XK_comma, {XK_Super_L});
  EXPECT_TRUE(becomeActive());
  EXPECT_FALSE(isShown());
}

TEST_F(SettingsWindowTest, ThePanelsButton_OpensTheSettingsAndHidesThePanel) {
  start(commands({u"Build"_s}));
  click(reader.find(window(u"Lanternix"_s), u"push button"_s, u"Settings"_s));
  EXPECT_TRUE(becomeActive());
  EXPECT_FALSE(isShown());
}

TEST_F(SettingsWindowTest, TheButtonOfTheEmptyPanel_OpensTheSettings) {
  start(SampleGroups());
  click(reader.find(window(u"Lanternix"_s), u"push button"_s, u"Open Settings"_s));
  EXPECT_TRUE(becomeActive());
  EXPECT_FALSE(isShown());
}

TEST_F(SettingsWindowTest, IsAnOrdinaryWindow) {
  openSettings();
  const WindowProbe &windows = session().windows();
  EXPECT_EQ(windows.types(settings()), QStringList(u"_NET_WM_WINDOW_TYPE_NORMAL"_s));
  EXPECT_FALSE(windows.states(settings()).contains(u"_NET_WM_STATE_SKIP_TASKBAR"_s));
  EXPECT_FALSE(windows.states(settings()).contains(u"_NET_WM_STATE_ABOVE"_s));
  EXPECT_EQ(windows.wmClass(settings()), (QStringList{u"lanternix"_s, u"Lanternix"_s}));
}

TEST_F(SettingsWindowTest, CannotBeMadeSmallerThan600By480) {
  openSettings();
  EXPECT_EQ(session().windows().minimumSize(settings()), QSize(600, 480));
  EXPECT_GE(session().windows().geometry(settings()).width(), 600);
  EXPECT_GE(session().windows().geometry(settings()).height(), 480);
}

TEST_F(SettingsWindowTest, OverAnotherProgram_ItHasTheKeyboardAndLiesInFront) {
  startHidden(commands({u"Build"_s}));
  const auto other = session().openOtherWindow({0, 0, 900, 700});
  input().type(u"hello"_s);
  ASSERT_TRUE(waitUntil([&] { return other->keys().size() == 5; }));
  showByShortcut();
  pressSettingsKeys();
  EXPECT_TRUE(becomeActive());
  EXPECT_TRUE(waitUntil([&] { return session().windows().isAbove(settings(), other->window()); }));
}

TEST_F(SettingsWindowTest, ASecondOpening_RaisesTheSameWindow) {
  openSettings();
  const xcb_window_t first = settings();
  const auto other = session().openOtherWindow({0, 0, 900, 700});
  ASSERT_TRUE(waitUntil([&] { return session().windows().isAbove(other->window(), first); }));
  showByShortcut();
  pressSettingsKeys();
  EXPECT_TRUE(becomeActive());
  EXPECT_EQ(settings(), first);
  EXPECT_TRUE(waitUntil([&] { return session().windows().isAbove(first, other->window()); }));
}

TEST_F(SettingsWindowTest, OpenedAgain_ShowsTheTabThatWasShownLast) {
  openSettings();
  showTab(u"About"_s);
  const auto version = control(u"label"_s, u"Version 1.0.0"_s);
  ASSERT_TRUE(waitUntil([&] { return reader.has(version, State::showing); }));
  closeSettings();
  ASSERT_FALSE(reader.has(version, State::showing));
  showByShortcut();
  pressSettingsKeys();
  requireSettings();
  EXPECT_TRUE(waitUntil([&] { return reader.has(version, State::showing); }));
}

TEST_F(SettingsWindowTest, OpenedAgain_StandsWhereItWasMovedTo) {
  openSettings();
  program().settle();
  const QRect before = session().windows().geometry(settings());
  const QRect frame = session().windows().frameGeometry(settings());
  const QPoint title(before.center().x(), (frame.top() + before.top()) / 2);
  input().moveTo(title);
  input().pressButton();
  // The first move only begins the drag.
  input().moveTo(title + QPoint(-20, 15));
  session().windowManager()->settle();
  input().moveTo(title + QPoint(-70, 45));
  ASSERT_TRUE(waitUntil(
      [&] { return session().windows().geometry(settings()) == before.translated(-70, 45); }));
  input().releaseButton();
  closeSettings();
  showByShortcut();
  pressSettingsKeys();
  requireSettings();
  EXPECT_TRUE(waitUntil(
      [&] { return session().windows().geometry(settings()) == before.translated(-70, 45); }));
}

TEST_F(SettingsWindowTest, Closed_TheProgramGoesOn) {
  openSettings();
  closeSettings();
  EXPECT_TRUE(program().isRunning());
  showByShortcut();
  input().type(u"Build"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
}

TEST_F(SettingsWindowTest, Escape_LeavesItOpen) {
  openSettings();
  input().tap(XK_Escape);
  program().settle();
  EXPECT_TRUE(areSettingsShown());
}

TEST_F(SettingsWindowTest, APressOnTheSettings_LeavesAShownPanelAlone) {
  openSettings();
  showByShortcut();
  const QRect place = session().windows().geometry(settings());
  input().click(place.bottomLeft() + QPoint(30, -30));
  ASSERT_TRUE(becomeActive());
  program().settle();
  EXPECT_TRUE(isShown());
}

TEST_F(SettingsWindowTest, TheKeyboardAlone_ChangesTheSize) {
  openSettings();
  input().tap(XK_Page_Down, {XK_Control_L});
  const auto medium = control(u"radio button"_s, u"Medium"_s);
  for (int tab = 0; tab < 8 && !reader.has(medium, State::focused); ++tab) {
    input().tap(XK_Tab);
    program().settle();
  }
  ASSERT_TRUE(reader.has(medium, State::focused));
  input().tap(XK_Right);
  EXPECT_TRUE(
      waitUntil([this] { return session().home().preference(u"panelItemSize"_s) == u"large"_s; }));
}

TEST_F(SettingsWindowTest, AnotherSize_IsStoredAndDrawnInThePanelAtOnce) {
  openSettings();
  showTab(u"Settings"_s);
  showByShortcut();
  const QImage medium = settledPicture();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  click(control(u"radio button"_s, u"Large"_s));
  EXPECT_TRUE(
      waitUntil([this] { return session().home().preference(u"panelItemSize"_s) == u"large"_s; }));
  EXPECT_TRUE(areSettingsShown());
  showByShortcut();
  constexpr int listTop = 120;
  EXPECT_FALSE(changedArea(medium, medium.rect().adjusted(0, listTop, 0, 0)).isEmpty());
}

TEST_F(SettingsWindowTest, ASwitch_IsStoredAtOnce) {
  openSettings();
  showTab(u"Settings"_s);
  const auto paths = control(u"check box"_s, u"Show Paths / URLs"_s);
  ASSERT_TRUE(reader.has(paths, State::checked));
  click(paths);
  EXPECT_TRUE(
      waitUntil([this] { return session().home().preference(u"showURLs"_s) == u"false"_s; }));
  EXPECT_TRUE(waitUntil([&] { return !reader.has(paths, State::checked); }));
}

TEST_F(SettingsWindowTest, EveryControlOfTheGeneralTab_HasItsName) {
  openSettings();
  for (const QString &name : {u"Groups"_s, u"Settings"_s, u"Data"_s, u"About"_s}) {
    EXPECT_NO_THROW(control(u"page tab"_s, name)) << name.toStdString();
  }
  showTab(u"Settings"_s);
  for (const auto &[role, name] :
       {std::pair(u"push button"_s, u"Toggle Popup Panel"_s),
        std::pair(u"check box"_s, u"Show Paths / URLs"_s),
        std::pair(u"check box"_s, u"Show Recent Items"_s), std::pair(u"radio button"_s, u"Small"_s),
        std::pair(u"check box"_s, u"Launch Lanternix at Login"_s)}) {
    EXPECT_NO_THROW(control(role, name)) << name.toStdString();
  }
}

}  // namespace
}  // namespace lanternix
