#include "desktop/layer/PanelOnScreen.h"
#include "desktop/wayland/SwayTest.h"
#include "support/AccessibilityBus.h"
#include "support/OtherClient.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// The program where there is no server for X programs, so that it speaks to sway itself, and its
/// panel is an ordinary window.
class SwayWindowTest : public SwayTest {
 protected:
  SwayWindowTest() { startSession({}, SwaySession::XServer::no); }

  /// Where the panel is seen; its window is larger by the shadow.
  QRect frame() const { return panelOnScreen(session->picture(), SwaySession::screenSize); }
  static QPoint middleOfTheScreen() { return QRect({}, SwaySession::screenSize).center(); }

  /// The same once the panel is drawn.
  QRect requireFrame() const {
    require(u"the panel"_s, [this] { return frame().size() == QSize(700, 500); });
    return frame();
  }

  /// What is seen where the panel has its first items.
  QImage middle() const {
    constexpr QPoint reach(150, 150);
    return session->picture().copy(QRect(middleOfTheScreen() - reach, middleOfTheScreen() + reach));
  }

  /// Returns once the panel, which is seen, knows that it has the keyboard: a press before that
  /// would be too quick for any hand.
  void waitForTheKeyboard() {
    const QImage before = middle();
    input().type(u"dep"_s);
    require(u"the found item"_s, [&] { return middle() != before; });
  }

  /// Whether the panel is there, give or take the step by which a drag has begun and sway's
  /// rounding.
  bool isNear(const QRect &expected) const {
    const auto isNear = [](QPoint a, QPoint b) { return (a - b).manhattanLength() <= 4; };
    const QRect now = frame();
    return isNear(now.topLeft(), expected.topLeft()) &&
           isNear(now.bottomRight(), expected.bottomRight());
  }

  /// Drags by \p distance from there until the panel is near \p expected, and lets go.
  void drag(QPoint from, QPoint distance, const QRect &expected) {
    const QRect before = frame();
    const auto follows = [&](QPoint step) {
      input().moveBy(step);
      return waitUntil([&] { return frame() != before; }, std::chrono::milliseconds(50));
    };
    input().moveTo(from);
    input().pressButton();
    // The way of the mouse until then is lost.
    require(u"sway to take the drag"_s, [&] { return follows({1, 1}) || follows({-1, -1}); });
    // Sway forgets the size that it wants of a window which is not done with the one before. A hand
    // never holds quite still.
    require(u"the panel to follow the mouse"_s, [&] {
      input().moveTo(from + distance);
      return isNear(expected);
    });
    input().releaseButton();
  }

  bool settingsGetTheKeyboard() const {
    return waitUntil([this] { return settings() && (*settings())["focused"_L1].toBool(); });
  }
};

TEST_F(SwayWindowTest, WithoutAServerForXPrograms_ThePanelIsAWindowOfThatDesktopInTheMiddle) {
  ASSERT_FALSE(variables().contains(u"DISPLAY"_s));
  ASSERT_FALSE(variables().contains(u"QT_QPA_PLATFORM"_s));
  startProgram();
  EXPECT_EQ((*panel())["shell"_L1].toString(), u"xdg_shell"_s);
  EXPECT_EQ((*panel())["type"_L1].toString(), u"floating_con"_s);
  EXPECT_EQ(panelGeometry().size(), QSize(772, 576));
  EXPECT_TRUE(waitUntil([this] { return frame().size() == QSize(700, 500); }));
  EXPECT_LE((panelGeometry().center() - middleOfTheScreen()).manhattanLength(), 2);
  savePicture(u"sway-window"_s);
}

TEST_F(SwayWindowTest, DisplayWhoseServerDoesNotAnswer_IsPassedOver) {
  variables().insert(u"DISPLAY"_s, u":4242"_s);
  startProgram();
  EXPECT_EQ((*panel())["shell"_L1].toString(), u"xdg_shell"_s);
}

TEST_F(SwayWindowTest, DisplayWhoseServerDoesNotAnswer_IsPassedOverByNameOfGnomeToo) {
  variables().insert(u"DISPLAY"_s, u":4242"_s);
  variables().insert(u"XDG_CURRENT_DESKTOP"_s, u"GNOME"_s);  // where Qt would rather have X
  startProgram();
  EXPECT_EQ((*panel())["shell"_L1].toString(), u"xdg_shell"_s);
}

TEST_F(SwayWindowTest, WindowsAreKnownByTheNameOfTheDesktopEntry) {
  startProgram();
  EXPECT_EQ((*panel())["app_id"_L1].toString(), u"org.lanternix.Lanternix"_s);
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  ASSERT_TRUE(settingsGetTheKeyboard());
  EXPECT_EQ((*settings())["app_id"_L1].toString(), u"org.lanternix.Lanternix"_s);
}

TEST_F(SwayWindowTest, TypedLettersFind_ReturnOpens) {
  startProgram();
  input().type(u"dep"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"deploy"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_FALSE(session->home().isMarked(u"build"_s));
}

TEST_F(SwayWindowTest, Shortcut_HidesAndShowsThePanel_WhichTakesTheLettersThatFollow) {
  startProgram();
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  pressShortcut();
  ASSERT_TRUE(becomesShown());
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_F(SwayWindowTest, RecordedShortcut_TakesThePlaceOfTheOldOne) {
  AccessibilityBus reader(variables());
  startProgram();
  recordShortcut(
      reader,
      [this] {
        input().tap(KEY_K, {KEY_LEFTCTRL, KEY_LEFTALT});
      },
      u"⌃⌥K"_s);
  EXPECT_FALSE(isShown());
  input().tap(KEY_K, {KEY_LEFTCTRL, KEY_LEFTALT});
  ASSERT_TRUE(becomesShown());
  pressShortcut();
  EXPECT_TRUE(staysShown());
  input().tap(KEY_K, {KEY_LEFTCTRL, KEY_LEFTALT});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayWindowTest, Background_MovesThePanel) {
  startProgram();
  const QRect before = requireFrame();
  drag(before.topLeft() + QPoint(350, 25), {-120, 90}, before.translated(-120, 90));
  EXPECT_EQ(frame().size(), before.size());
}

TEST_F(SwayWindowTest, RightBottomCorner_ResizesThePanel_WhichKeepsItsSize) {
  startProgram();
  const QRect before = requireFrame();
  drag(before.bottomRight() - QPoint(1, 1), {60, 40}, before.adjusted(0, 0, 60, 40));
  const QSize kept = frame().size();
  const auto stored = [this](const QString &key) { return session->home().preference(key); };
  ASSERT_TRUE(waitUntil([&] {
    return stored(u"panelWidth"_s) == QString::number(kept.width()) &&
           stored(u"panelHeight"_s) == QString::number(kept.height());
  }));
  input().tap(KEY_ESC);
  ASSERT_TRUE(becomesHidden());
  pressShortcut();
  EXPECT_TRUE(waitUntil([&] { return frame().size() == kept; }));
}

TEST_F(SwayWindowTest, LeftTopCornerDraggedFarInwards_StopsAtTheSmallestSize) {
  startProgram();
  const QRect before = requireFrame();
  QRect smallest({}, QSize(400, 300));
  smallest.moveBottomRight(before.bottomRight());
  drag(before.topLeft() + QPoint(2, 2), {600, 450}, smallest);
  EXPECT_EQ(frame().size(), smallest.size());
}

TEST_F(SwayWindowTest, PressOnAnotherWindow_HidesThePanel) {
  startSession();
  variables().insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
  OtherClient other(session->displayName());  // fills the screen, as windows do in sway
  other.show();
  startHidden();
  const QImage before = middle();
  pressShortcut();
  ASSERT_TRUE(becomesShown());
  require(u"the panel over the other window"_s, [&] { return middle() != before; });
  waitForTheKeyboard();
  session->click({40, 40});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayWindowTest, PressOnTheBareDesktop_HidesThePanel) {
  startProgram();
  requireFrame();
  waitForTheKeyboard();
  session->click({5, 5});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayWindowTest, ContextMenu_LeavesThePanelShown_AndIsUsable) {
  startProgram();
  input().tap(KEY_DOWN);
  input().tap(KEY_F10, {KEY_LEFTSHIFT});
  EXPECT_TRUE(staysShown());
  savePicture(u"sway-window-menu"_s);
  input().tap(KEY_DOWN);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(waitUntil([this] { return !session->home().item(u"build Copy"_s).isEmpty(); }));
}

TEST_F(SwayWindowTest, SettingsFromThePanel_HaveTheKeyboard) {
  startProgram();
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  EXPECT_TRUE(settingsGetTheKeyboard());
  EXPECT_TRUE(becomesHidden());
  savePicture(u"sway-window-settings"_s);
}

}  // namespace
}  // namespace lanternix
